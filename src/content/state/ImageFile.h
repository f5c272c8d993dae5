// Images on their way to and from files.
#pragma once

#include <cstdint>
#include <memory>
#include <new>

#include "content/ByteWriter.h"

namespace korvane {

/// A block of bytes with its size. Empty when there was no memory for it.
struct Image {
    std::unique_ptr<std::uint8_t[]> bytes;
    std::int32_t size = 0;

    bool Allocate(std::int32_t newSize)
    {
        bytes.reset(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(newSize)]);
        size = bytes ? newSize : 0;
        return bytes != nullptr;
    }
};

/// The image that `write` makes through the ByteWriter it is given: once to size, once to fill, and again when other
/// threads let the image grow between the two. Any thread but the audio thread.
template <class Write>
Image MakeImage(Write write)
{
    Image image;
    for (;;) {
        ByteWriter counted;
        write(counted);
        if (!image.Allocate(counted.Size())) return image;
        ByteWriter filled(image.bytes.get(), image.size);
        write(filled);
        if (filled.Size() > image.size) continue;
        image.size = filled.Size();
        return image;
    }
}

inline constexpr int kMinImageFileBytes = 5; // shorter files are not looked into

/// Reads a file, or what it has below `limit`. False, and nothing in `image`, when it cannot be opened or has fewer
/// than five bytes.
/// tag  that the image begins with; of any other file no more is read than refuses it, however long it is; null: any
bool ReadImageFile(const char* path, Image& image, std::int32_t limit = INT32_MAX, const char* tag = nullptr);

/// Creates or replaces the file. False when that is refused, see SaveFile.
bool WriteImageFile(const char* path, const Image& image);

} // namespace korvane
