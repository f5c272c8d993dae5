// Writes an image, or only counts its bytes.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace korvane {

static_assert(std::endian::native == std::endian::little, "images are little-endian and are copied as they stand");

/// One function writes a format through this; without a buffer it counts, so that size and bytes cannot disagree.
class ByteWriter {
public:
    /// buffer    null: only count
    /// capacity  bytes in the buffer; what does not fit is counted and not written
    explicit ByteWriter(std::uint8_t* target = nullptr, std::int32_t capacity = INT32_MAX)
        : buffer(target), limit(target ? static_cast<std::size_t>(capacity) : 0)
    {
    }

    /// Bytes of the image so far, written or not.
    std::int32_t Size() const { return static_cast<std::int32_t>(size); }

    template <class T>
    void Write(T value)
    {
        static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
        Put(size, &value, sizeof value);
        size += sizeof value;
    }

    /// Four bytes, in file order.
    void Tag(const char (&tag)[5])
    {
        Put(size, tag, 4);
        size += 4;
    }

    /// A text field, padding included.
    template <std::size_t kSize>
    void Text(const char (&text)[kSize])
    {
        Put(size, text, kSize);
        size += kSize;
    }

    /// A length word and the bytes that `body` writes. The word is filled in afterwards: what it counts may be changing
    /// under another thread's hands.
    template <class Body>
    void Chunk(Body body)
    {
        const std::size_t start = size;
        Write(std::int32_t{0});
        body();
        const auto length = static_cast<std::int32_t>(size - start - sizeof(std::int32_t));
        Put(start, &length, sizeof length);
    }

private:
    void Put(std::size_t at, const void* bytes, std::size_t count)
    {
        if (at + count <= limit) std::memcpy(buffer + at, bytes, count);
    }

    std::uint8_t* buffer;
    std::size_t limit;
    std::size_t size = 0;
};

} // namespace korvane
