// The whole instrument: the synthesizer with its grooves, parts, programs and the host's chunks.
#include "content/state/KVInstrument.h"

#include <chrono>
#include <cstring>
#include <exception>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "content/PathText.h"
#include "content/state/ChannelChunk.h"
#include "content/state/ImageTags.h"
#include "content/state/KeptSettings.h"
#include "content/state/PartImage.h"
#include "content/state/PreparedFiles.h"
#include "content/state/StateImage.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kLookRound{20}; // MIDI orders and freed memory wait so long
constexpr std::chrono::hours kNoPause{1};           // the teller is always woken

/// What a channel keeps whatever program, or whatever part, it plays.
constexpr int kKeptByPrograms[] = {slot::MixLevel, slot::Panning, slot::NoteLength, slot::ShuffleEnable};
constexpr int kKeptByParts[] = {slot::MixLevel, slot::Panning};

std::string FolderText(const std::string& path) { return std::string(FolderOf(path)); }
std::string GrooveName(const std::string& path) { return std::string(StemOf(path)); }

} // namespace

KVInstrument::KVInstrument(CPluginWrapper* bridge)
    : KVSynth(bridge), synthPrograms(folders.synthPrograms, "kvsynth"),
      samplerPrograms(folders.samplerPrograms, "kvsmp"), teller([this] { TellHost(); }, kNoPause),
      loader([this] { LookRound(); }, kLookRound)
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
    if (!WriteImageFile(path, StateImage())) return false;
    grooveName.Set(GrooveName(EnginePath(path)).c_str());
    return true;
}

bool KVInstrument::SaveGrooveWithSamples(const char* path)
{
    if (!WriteImageFile(path, StateImage())) return false;
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

/// Whatever is dropped on the editor comes here first, an hour of sound as well.
bool KVInstrument::LoadGrooveFile(const char* path)
{
    Image image;
    if (!ReadImageFile(path, image, INT32_MAX, tag::kGroove)) return false;
    const std::string file = EnginePath(path);
    bool loaded = false;
    Load([&] {
        engine->samplePool->SetGrooveFolders(FolderText(file).c_str());
        loaded = Replace(image.bytes.get(), image.size);
        if (loaded) grooveName.Set(GrooveName(file).c_str());
    });
    if (!loaded) return false;
    Tell();
    return true;
}

bool KVInstrument::SavePartFile(int channel, const char* path)
{
    return WriteImageFile(path, Unchanging([&](ByteWriter& out) { WritePart(out, *engine, channel); }));
}

bool KVInstrument::LoadPartFile(int channel, const char* path)
{
    Image image;
    if (!ReadImageFile(path, image)) return false;
    bool loaded = false;
    Load([&] {
        engine->samplePool->SetGrooveFolders(FolderText(EnginePath(path)).c_str());
        loaded = ReplacePart(channel, image);
    });
    if (!loaded) return false;
    Tell();
    return true;
}

void KVInstrument::LoadDefaultGroove()
{
    Image image;
    if (ReadImageFile(folders.defaultGroove, image)) Load([&] { Replace(image.bytes.get(), image.size); });
    grooveName.Set("Default Groove");
}

// Chunks

template <class Write>
Image KVInstrument::Unchanging(Write write) const
{
    for (;;) {
        const std::uint32_t before = ChangeCount();
        Image image = MakeImage(write);
        if (before % 2 == 0 && ChangeCount() == before) return image;
    }
}

Image KVInstrument::StateImage() const
{
    return Unchanging([this](ByteWriter& out) { WriteState(out, *engine); });
}

std::int32_t KVInstrument::SetProgramChunk(const void* data, std::int32_t size)
{
    bool loaded = false;
    Load([&] {
        engine->samplePool->ClearGrooveFolders();
        loaded = Replace(static_cast<const std::uint8_t*>(data), size);
    });
    if (!loaded) return 0;
    RefreshEditor();
    return size;
}

/// Hosts ask for the size, then for the bytes; in between another thread may add locks. A groove that has outgrown the
/// size told is given as it was then.
std::int32_t KVInstrument::GetProgramChunk(void* buffer)
{
    Image image = StateImage();
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

bool KVInstrument::SaveProgramFile(int channel, const char* path)
{
    if (!WriteImageFile(path, Unchanging([&](ByteWriter& out) { WriteChannelChunk(out, *engine, channel); })))
        return false;
    engine->Channel(channel).programPath.Set(EnginePath(path).c_str());
    RefreshEditor();
    return true;
}

bool KVInstrument::LoadProgramFile(int channel, const char* path)
{
    bool loaded = false;
    Load([&] { loaded = ReplaceChannel(path, channel); });
    if (!loaded) return false;
    Tell();
    return true;
}

void KVInstrument::LoadSample(int channel, int slot, const char* path)
{
    if (channel < 0 || channel >= kChannels || slot < 0 || slot >= kSampleSlots || !path) return;
    SampleSlot& target = engine->Channel(channel).sound.sampleSlots[static_cast<std::size_t>(slot)];
    Load([&] {
        SamplePool& pool = *engine->samplePool;
        target.offer.Put(pool.Use(SampleSlot::RequestFor(path), SlotKind(slot)), pool.returned);
    });
}

// Resets

/// The empty groove is one of which nothing was read.
void KVInstrument::ResetGroove()
{
    Load([&] {
        BeginLoad(*engine);
        engine->score.ClearSpare();
        Put(GrooveState(*engine));
    });
    Tell();
}

void KVInstrument::ResetPart()
{
    ResetChannel([this](int channel) {
        engine->score.Current().ClearChannel(channel);
        engine->InitSettings(channel);
    });
}

void KVInstrument::ResetProgram()
{
    ResetChannel([this](int channel) {
        KeptSettings before(*engine, channel, kKeptByPrograms);
        engine->InitSettings(channel);
        before.PutBack();
    });
}

/// act  on the channel that is selected; its files come afterwards
template <class Act>
void KVInstrument::ResetChannel(Act act)
{
    Load([&] {
        const int channel = engine->selection.selectedChannel;
        const ChannelSettings defaults(*engine, channel);
        PreparedFiles files(*engine);
        files.Prepare(channel, defaults);
        MakeChange([&] {
            act(channel);
            files.Put();
        });
    });
    Tell();
}

// Libraries

bool KVInstrument::SelectProgramFolder(int index)
{
    return Browse([index](CPresetList& list) {
        list.SelectFolder(index);
        return list.folders.GetEntry(index) != nullptr;
    });
}

bool KVInstrument::SelectProgram(int index)
{
    return Browse([index](CPresetList& list) {
        list.SelectEntry(index);
        return list.files.GetEntry(index) != nullptr;
    });
}

bool KVInstrument::StepProgram(int direction)
{
    return Browse([direction](CPresetList& list) { return direction < 0 ? list.PreviousEntry() : list.NextEntry(); });
}

ProgramLibrary KVInstrument::Library(bool sampler) const
{
    const std::lock_guard guard(browsing);
    return ProgramLibrary(sampler ? samplerPrograms : synthPrograms);
}

template <class Choose>
bool KVInstrument::Browse(Choose choose)
{
    bool loaded = false;
    Load([&] { loaded = LoadChosen(engine->selection.selectedChannel, choose); });
    if (loaded) Tell();
    return loaded;
}

/// choose  selects in the library of the channel's kind; whether what is selected then is to be loaded
template <class Choose>
bool KVInstrument::LoadChosen(int channel, Choose choose)
{
    CPresetList& list = channel < kSamplerChannels ? samplerPrograms : synthPrograms;
    {
        const std::lock_guard guard(browsing);
        if (!choose(list)) return false;
    }
    const bool loaded = ReplaceChannel(list.filePath, channel);
    if (!loaded) RefreshEditor(); // which shows what is selected in the library
    return loaded;
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
    static constexpr auto kPoll = std::chrono::microseconds(100);
    constexpr auto kTelling = std::chrono::milliseconds(100); // a host may need this very thread to be told
    const LibraryOrder order{bank, static_cast<std::uint8_t>(number),
                             static_cast<std::uint8_t>(static_cast<int>(engine->selection.selectedChannel))};
    if (!orders.Push(order) || (wrapper && wrapper->RealTime())) return;

    const std::uint32_t asked = orders.Pushed();
    const auto behind = [](const std::atomic<std::uint32_t>& count, std::uint32_t due) {
        return static_cast<std::int32_t>(count.load(std::memory_order_acquire) - due) < 0;
    };
    const auto wait = [this] {
        HelpWithChange();
        std::this_thread::sleep_for(kPoll);
    };
    loader.Wake();
    while (behind(ordersDone, asked) && !loader.Ending()) wait();
    const std::uint32_t due = reportsDue.load(std::memory_order_acquire);
    const auto patient = std::chrono::steady_clock::now() + kTelling;
    while (behind(reportsMade, due) && std::chrono::steady_clock::now() < patient) wait();
}

void KVInstrument::TellHost()
{
    while (reportsMade.load(std::memory_order_relaxed) != reportsDue.load(std::memory_order_acquire) &&
           !teller.Ending()) {
        Tell();
        reportsMade.fetch_add(1, std::memory_order_release);
    }
}

// The loader

void KVInstrument::Load(const Worker::Task& task)
{
    loader.Run(task, [this] { HelpWithChange(); });
}

void KVInstrument::Tell()
{
    ReportParameters();
    RefreshEditor();
}

void KVInstrument::FinishLoading()
{
    Load([] {});
    teller.Run([] {}, [this] { HelpWithChange(); });
}

void KVInstrument::EndThreads()
{
    loader.End();
    teller.End();
}

void KVInstrument::LookRound()
{
    engine->samplePool->Collect();
    engine->ServeRequests();
    for (LibraryOrder order; !loader.Ending() && orders.Pop(order);) {
        bool loaded = false;
        try {
            loaded = Select(order);
        } catch (const std::exception&) { // out of memory: nothing was loaded
        }
        if (loaded) reportsDue.fetch_add(1, std::memory_order_release);
        ordersDone.fetch_add(1, std::memory_order_release);
        if (loaded) teller.Wake();
    }
}

bool KVInstrument::Select(const LibraryOrder& order)
{
    return LoadChosen(order.channel, [&order](CPresetList& list) {
        if (!order.bank) return list.SelectEntry(order.number);
        list.SelectFolder(order.number);
        return true;
    });
}

bool KVInstrument::Replace(const std::uint8_t* data, std::int32_t size)
{
    BeginLoad(*engine);
    GrooveState state(*engine);
    const bool whole = ReadState(ByteReader(data, size), *engine, state);
    if (!state.begun) {
        ForgetLoad(*engine);
        return false;
    }
    Put(state);
    return whole;
}

/// After BeginLoad.
void KVInstrument::Put(const GrooveState& state)
{
    PreparedFiles files(*engine);
    for (int c = 0; c < kChannels; ++c) files.Prepare(c, state.channels[static_cast<std::size_t>(c)]);
    MakeChange([&] {
        FollowHostTime();
        ServeBeforeLoad(*engine);
        PutState(*engine, state);
        files.Put();
        EndLoad(*engine);
    });
}

bool KVInstrument::ReplacePart(int channel, const Image& image)
{
    PartState part(*engine, channel);
    const bool whole = ReadPart(ByteReader(image.bytes.get(), image.size), *engine, part);
    PreparedFiles files(*engine);
    if (part.settings.begun) files.Prepare(part.channel, part.settings);
    MakeChange([&] {
        KeptSettings kept(*engine, part.channel, kKeptByParts);
        PutPart(*engine, part);
        files.Put();
        kept.PutBackChanged();
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
        KeptSettings kept(*engine, channel, kKeptByPrograms);
        PutSettings(*engine, channel, settings);
        files.Put();
        kept.PutBack();
    });
    return whole;
}

} // namespace korvane
