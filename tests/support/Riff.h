// WAV and AIFF files byte by byte, right ones and wrong ones.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace korvane::riff {

using Bytes = std::string;

inline Bytes Little(std::size_t value, int count)
{
    Bytes bytes;
    for (; count > 0; --count, value >>= 8) bytes += static_cast<char>(value & 0xFF);
    return bytes;
}

inline Bytes Big(std::size_t value, int count)
{
    const Bytes bytes = Little(value, count);
    return {bytes.rbegin(), bytes.rend()};
}

/// number  writes the length: Little for WAV, Big for AIFF
inline Bytes Chunk(const char* id, const Bytes& data, Bytes (*number)(std::size_t, int) = Little)
{
    return Bytes(id) + number(data.size(), 4) + data + Bytes(data.size() % 2, '\0');
}

// WAV

constexpr int kIntegers = 1, kFloats = 3; // format tags

/// align  bytes of a frame, 0: as many as it takes
inline Bytes Format(int tag, int channels, int bits, std::uint32_t rate = 44100, int align = 0)
{
    const std::uint32_t frame = align == 0 ? (channels & 0xFF) * bits / 8 : align;
    return Chunk("fmt ", Little(tag, 2) + Little(channels, 2) + Little(rate, 4) + Little(frame * rate, 4) +
                             Little(frame, 2) + Little(bits, 2));
}
inline Bytes Data(const Bytes& sound) { return Chunk("data", sound); }
inline Bytes Loop(std::uint32_t start, std::uint32_t end, int bytes = 52)
{
    return Chunk("smpl", (Bytes(44, '\0') + Little(start, 4) + Little(end, 4)).substr(0, bytes));
}
inline Bytes Wav(const Bytes& chunks, const char* form = "RIFF", const char* type = "WAVE")
{
    return Bytes(form) + Little(chunks.size() + 4, 4) + type + chunks;
}

/// Mono, of floats.
inline Bytes WavOf(const std::vector<float>& frames)
{
    Bytes sound;
    for (const float frame : frames) sound += Little(std::bit_cast<std::uint32_t>(frame), 4);
    return Wav(Format(kFloats, 1, 32) + Data(sound));
}

// AIFF

constexpr int kExponent = 0x400E;               // of 44100 Hz
constexpr std::uint32_t kMantissa = 0xAC440000; // its upper half

inline Bytes Common(int channels, int frames, int bits, int exponent = kExponent, std::uint32_t mantissa = kMantissa)
{
    return Chunk(
        "COMM", Big(channels, 2) + Big(frames, 4) + Big(bits, 2) + Big(exponent, 2) + Big(mantissa, 4) + Bytes(4, '\0'),
        Big);
}
inline Bytes Sound(const Bytes& data, int offset = 0)
{
    return Chunk("SSND", Big(offset, 4) + Bytes(4, '\0') + Bytes(offset, '\x55') + data, Big);
}
inline Bytes Marker(int id, std::uint32_t position, const Bytes& name = "")
{
    return Big(id, 2) + Big(position, 4) + Big(name.size(), 1) + name + Bytes(1 - name.size() % 2, '\0');
}
inline Bytes Markers(int count, const Bytes& markers) { return Chunk("MARK", Big(count, 2) + markers, Big); }
inline Bytes SustainLoop(int begin, int end, int bytes = 20)
{
    return Chunk("INST", (Bytes(10, '\0') + Big(begin, 2) + Big(end, 2) + Bytes(6, '\0')).substr(0, bytes), Big);
}
inline Bytes Aiff(const Bytes& chunks, const char* type = "AIFF")
{
    return Bytes("FORM") + Big(chunks.size() + 4, 4) + type + chunks;
}

} // namespace korvane::riff
