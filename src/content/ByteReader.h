// Reads foreign bytes; the one place that knows where they end.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace korvane {

static_assert(std::endian::native == std::endian::little, "images are little-endian and are copied as they stand");

/// Walks an image from front to back. A read that would cross the end takes nothing, answers 0 and fails the reader for
/// good, so a run of reads needs one look at Ok. Looks at bytes that somebody else owns.
class ByteReader {
public:
    /// bytes  may be null when size is 0
    /// size   a negative one counts as 0
    ByteReader(const std::uint8_t* bytes, std::int32_t size) : next(bytes), left(bytes && size > 0 ? size : 0) {}

    bool Ok() const { return ok; }
    std::int32_t Left() const { return left; }
    const std::uint8_t* Rest() const { return next; }

    /// False, and `value` as it was, when it is not there.
    template <class T>
    bool Read(T& value)
    {
        static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
        return Bytes(&value, sizeof value);
    }

    template <class T>
    T Read()
    {
        T value{};
        Read(value);
        return value;
    }

    /// Takes four bytes, in file order; any others fail the reader.
    bool Tag(const char (&tag)[5])
    {
        char found[4] = {};
        if (Bytes(found, sizeof found) && std::memcmp(found, tag, sizeof found) != 0) ok = false;
        return ok;
    }

    /// Takes a text field as wide as its buffer; the last byte becomes 0 whatever stands there.
    template <std::size_t kSize>
    bool Text(char (&text)[kSize])
    {
        if (!Bytes(text, kSize)) return false;
        text[kSize - 1] = '\0';
        return true;
    }

    /// Takes a length word and as many bytes, to be read on their own. A length beyond the end stands for what is
    /// there, a negative one for nothing.
    ByteReader Chunk() { return Next(Read<std::int32_t>()); }

    /// The same for a length that is known.
    ByteReader Next(std::int32_t told)
    {
        const std::int32_t size = told < 0 ? 0 : told < left ? told : left;
        ByteReader chunk(next, size);
        chunk.ok = ok;
        next += size;
        left -= size;
        return chunk;
    }

private:
    bool Bytes(void* out, std::size_t count)
    {
        if (count > static_cast<std::size_t>(left)) ok = false;
        if (!ok) return false;
        std::memcpy(out, next, count);
        next += count;
        left -= static_cast<std::int32_t>(count);
        return true;
    }

    const std::uint8_t* next;
    std::int32_t left;
    bool ok = true;
};

} // namespace korvane
