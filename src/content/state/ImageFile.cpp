// Images on their way to and from files.
#include "content/state/ImageFile.h"

#include <algorithm>
#include <cstring>

#include "content/CFileStreamer.h"
#include "platform/SaveFile.h"

namespace korvane {

static bool BeginsWith(CFileStreamer& file, const char* tag)
{
    char begin[4] = {};
    file.ReadBlock(begin, sizeof begin);
    return file.Seek(0) && std::memcmp(begin, tag, sizeof begin) == 0;
}

bool ReadImageFile(const char* path, Image& image, std::int32_t limit, const char* tag)
{
    CFileStreamer file;
    if (!path || !file.Open(path) || file.fileSize < kMinImageFileBytes) return false;
    if (tag && !BeginsWith(file, tag)) limit = kMinImageFileBytes;
    if (!image.Allocate(std::min(file.fileSize, limit))) return false;
    file.ReadBlock(image.bytes.get(), image.size);
    return true;
}

bool WriteImageFile(const char* path, const Image& image)
{
    return path && image.size > 0 && SaveFile(path, image.bytes.get(), static_cast<std::size_t>(image.size));
}

} // namespace korvane
