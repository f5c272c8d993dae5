// The whole instrument: the synthesizer with its grooves, parts, programs and the host's chunks.
#include "content/state/KVInstrument.h"

#include <chrono>
#include <cstring>
#include <iterator>
#include <new>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "content/PathText.h"
#include "content/state/ChannelChunk.h"
#include "content/state/PartImage.h"
#include "content/state/PreparedFiles.h"
#include "content/state/StateImage.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"

namespace korvane {

namespace {

/// What a channel keeps whatever program, or whatever part, it plays.
constexpr int kKeptByPrograms[] = {slot::MixLevel, slot::Panning, slot::NoteLength, slot::ShuffleEnable};
constexpr int kKeptByParts[] = {slot::MixLevel, slot::Panning};

/// A channel's setting as it is shown: an edited step's lock of the selected channel included.
float Shown(const GrooveEngine& engine, int channel, int base)
{
    if (channel == engine.selection.selectedChannel) return engine.GetChannelParameter(base);
    return engine.storedParams[channel][base];
}

void Show(GrooveEngine& engine, int channel, int base, float value)
{
    if (channel == engine.selection.selectedChannel) return engine.SetChannelParameter(base, value);
    engine.storedParams[channel][base] = value;
    engine.RefreshChannel(channel);
}

Image MakeState(const GrooveEngine& engine)
{
    return MakeImage([&engine](ByteWriter& out) { WriteState(out, engine); });
}

std::string FolderText(const std::string& path) { return std::string(FolderOf(path)); }
std::string GrooveName(const std::string& path) { return std::string(StemOf(path)); }

} // namespace

KVInstrument::KVInstrument(CPluginWrapper* bridge)
    : KVSynth(bridge), synthPrograms(folders.synthPrograms, "kvsynth"),
      samplerPrograms(folders.samplerPrograms, "kvsmp"), loader([this] { LookRound(); })
{
    synthPrograms.Refresh();
    samplerPrograms.Refresh();
    for (const char* extension : {"wav", "aif", "aiff"}) waveforms.AddFilter(extension, false);
    waveforms.Scan(folders.synthWaves);
    LoadDefaultGroove();
    FinishLoading(); // without a default groove, the empty one's waveforms
}

// Grooves and parts

bool KVInstrument::SaveGrooveFile(const char* path)
{
    if (!WriteImageFile(path, MakeState(*engine))) return false;
    grooveName.Set(GrooveName(EnginePath(path)).c_str());
    return true;
}

bool KVInstrument::SaveGrooveWithSamples(const char* path)
{
    if (!WriteImageFile(path, MakeState(*engine))) return false;
    Load([this] { // what slots are to play from now on, and only that
        MakeChange([this] { engine->TakeOffers(); });
        engine->samplePool->Collect();
    });
    bool all = true;
    constexpr std::pair<int, const char*> kFolders[] = {{kind::Sample, "Samples"}, {kind::Waveform, "Waveforms"}};
    for (const auto& [fileKind, name] : kFolders) {
        const std::string folder = FolderText(EnginePath(path)) + name;
        std::vector<std::string> files; // the list is the loader's, which need not wait for the copying
        Load([&, k = fileKind] { files = engine->samplePool->FilePaths(k); });
        all = CreateFolder(folder.c_str()) && SamplePool::CopyFiles(files, folder.c_str()) && all;
    }
    return all;
}

bool KVInstrument::LoadGrooveFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    const std::string file = EnginePath(path);
    const std::uint32_t ordered = engine->commands.transport.Pushed(); // the load stops what was started before it
    bool loaded = false;
    Load([&] {
        engine->samplePool->SetGrooveFolders(FolderText(file).c_str());
        loaded = Replace(image.bytes.get(), image.size, ordered);
    });
    if (!loaded) return false;
    grooveName.Set(GrooveName(file).c_str());
    ReportParameters();
    RefreshEditor();
    return true;
}

bool KVInstrument::SavePartFile(const char* path)
{
    return WriteImageFile(path, MakeImage([this](ByteWriter& out) { WritePart(out, *engine); }));
}

bool KVInstrument::LoadPartFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    bool loaded = false;
    Load([&] {
        engine->samplePool->SetGrooveFolders(FolderText(EnginePath(path)).c_str());
        loaded = ReplacePart(image);
    });
    if (!loaded) return false;
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVInstrument::LoadDefaultGroove()
{
    Image image;
    if (ReadImageFile(folders.defaultGroove, image)) Load([&] { Replace(image.bytes.get(), image.size, 0); });
    grooveName.Set("Default Groove");
}

// Chunks

std::int32_t KVInstrument::SetProgramChunk(const void* data, std::int32_t size)
{
    const std::uint32_t ordered = engine->commands.transport.Pushed(); // as in LoadGrooveFile
    bool loaded = false;
    Load([&] {
        engine->samplePool->ClearGrooveFolders();
        loaded = Replace(static_cast<const std::uint8_t*>(data), size, ordered);
    });
    if (!loaded) return 0;
    RefreshEditor();
    return size;
}

/// Hosts ask for the size, then for the bytes; in between another thread may add locks. A groove that has outgrown the
/// size told is given as it was then.
std::int32_t KVInstrument::GetProgramChunk(void* buffer)
{
    Image image = MakeState(*engine);
    if (!buffer) {
        sizedChunk = std::move(image);
        return sizedChunk.size;
    }
    const Image sized = std::move(sizedChunk);
    sizedChunk = {};
    const Image& given = sized.size > 0 && image.size > sized.size ? sized : image;
    if (given.size > 0) std::memcpy(buffer, given.bytes.get(), static_cast<std::size_t>(given.size));
    return given.size;
}

// Programs

bool KVInstrument::SaveProgramFile(const char* path)
{
    const int channel = engine->selection.selectedChannel;
    if (!WriteImageFile(path, MakeImage([&](ByteWriter& out) { WriteChannelChunk(out, *engine, channel); })))
        return false;
    engine->Channel(channel).programPath.Set(EnginePath(path).c_str());
    RefreshEditor();
    return true;
}

bool KVInstrument::LoadProgramFile(const char* path)
{
    bool loaded = false;
    Load([&] { loaded = ReplaceChannel(path, engine->selection.selectedChannel); });
    if (!loaded) return false;
    ReportParameters();
    RefreshEditor();
    return true;
}

void KVInstrument::LoadSample(int channel, int slot, const char* path)
{
    if (channel < 0 || channel >= kChannels || slot < 0 || slot >= kSampleSlots || !path) return;
    engine->Channel(channel).sound.sampleSlots[static_cast<std::size_t>(slot)].request.Post(
        SampleSlot::RequestFor(path));
    FinishLoading();
}

// MIDI

void KVInstrument::ProgramChangeReceived(int program) { Ask(false, program); }

bool KVInstrument::BankSelectReceived(int bank)
{
    Ask(true, bank);
    return true;
}

void KVInstrument::Ask(bool bank, int number)
{
    constexpr auto kPoll = std::chrono::microseconds(100);
    constexpr auto kTelling = std::chrono::milliseconds(100); // a host may need this very thread to be told
    const LibraryOrder order{bank, static_cast<std::uint8_t>(number),
                             static_cast<std::uint8_t>(static_cast<int>(engine->selection.selectedChannel))};
    if (!orders.Push(order) || (wrapper && wrapper->RealTime())) return;

    const std::uint32_t asked = orders.Pushed();
    const auto reached = [asked](const std::atomic<std::uint32_t>& count) {
        return static_cast<std::int32_t>(count.load(std::memory_order_acquire) - asked) >= 0;
    };
    loader.Wake();
    for (; !reached(ordersDone); std::this_thread::sleep_for(kPoll)) HelpWithChange();
    const auto patient = std::chrono::steady_clock::now() + kTelling;
    while (!reached(ordersTold) && std::chrono::steady_clock::now() < patient) std::this_thread::sleep_for(kPoll);
}

// The loader

void KVInstrument::Load(const Worker::Task& task)
{
    loader.Run(task, [this] { HelpWithChange(); });
}

void KVInstrument::FinishLoading()
{
    Load([] {});
}

void KVInstrument::LookRound()
{
    engine->samplePool->Collect();
    engine->ServeRequests();
    for (LibraryOrder order; orders.Pop(order);) {
        bool loaded = false;
        try {
            loaded = Select(order);
        } catch (const std::bad_alloc&) { // nothing was loaded
        }
        ordersDone.fetch_add(1, std::memory_order_release);
        if (loaded) ReportParameters();
        if (loaded) RefreshEditor();
        ordersTold.fetch_add(1, std::memory_order_release);
    }
}

bool KVInstrument::Select(const LibraryOrder& order)
{
    CPresetList& list = order.channel < kSamplerChannels ? samplerPrograms : synthPrograms;
    if (order.bank)
        list.SelectFolder(order.number);
    else if (!list.SelectEntry(order.number))
        return false;
    return ReplaceChannel(list.filePath, order.channel);
}

bool KVInstrument::Replace(const std::uint8_t* data, std::int32_t size, std::uint32_t ordered)
{
    GrooveState state(*engine);
    const bool whole = ReadState(ByteReader(data, size), *engine, state);
    if (!state.begun) return false;
    PreparedFiles files(*engine);
    for (int c = 0; c < kChannels; ++c) files.Prepare(c, state.channels[static_cast<std::size_t>(c)]);
    MakeChange([&] {
        ServeOrders(ordered);
        PutState(*engine, state);
        files.Offer();
    });
    return whole;
}

bool KVInstrument::ReplacePart(const Image& image)
{
    PartState part(*engine, engine->selection.selectedChannel);
    const bool whole = ReadPart(ByteReader(image.bytes.get(), image.size), *engine, part);
    PreparedFiles files(*engine);
    if (part.settings.begun) files.Prepare(part.channel, part.settings);
    MakeChange([&] {
        float kept[std::size(kKeptByParts)];
        for (std::size_t n = 0; n < std::size(kept); ++n) kept[n] = Shown(*engine, part.channel, kKeptByParts[n]);
        PutPart(*engine, part);
        files.Offer();
        for (std::size_t n = 0; n < std::size(kept); ++n)
            if (const int base = kKeptByParts[n]; Shown(*engine, part.channel, base) != kept[n])
                Show(*engine, part.channel, base, kept[n]);
    });
    return whole;
}

bool KVInstrument::ReplaceChannel(const char* path, int channel)
{
    Image image;
    if (!ReadImageFile(path, image, kChannelChunkBytes)) return false; // what may follow is nobody's
    const std::string file = EnginePath(path);
    engine->samplePool->SetGrooveFolders(FolderText(file).c_str());
    ChannelSettings settings(*engine, channel);
    const bool whole = ReadChannelChunk(ByteReader(image.bytes.get(), image.size), settings);
    if (whole) SetText(settings.programPath, file);
    PreparedFiles files(*engine);
    if (settings.begun) files.Prepare(channel, settings);
    MakeChange([&] {
        float kept[std::size(kKeptByPrograms)];
        for (std::size_t n = 0; n < std::size(kept); ++n) kept[n] = Shown(*engine, channel, kKeptByPrograms[n]);
        PutSettings(*engine, channel, settings);
        files.Offer();
        for (std::size_t n = 0; n < std::size(kept); ++n) Show(*engine, channel, kKeptByPrograms[n], kept[n]);
    });
    return whole;
}

} // namespace korvane
