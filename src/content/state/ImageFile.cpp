// Images on their way to and from files.
#include "content/state/ImageFile.h"

#include <algorithm>

#include "content/CFileStreamer.h"
#include "platform/SaveFile.h"

namespace korvane {

bool ReadImageFile(const char* path, Image& image, std::int32_t limit)
{
    CFileStreamer file;
    if (!path || !file.Open(path) || file.fileSize < kMinImageFileBytes) return false;
    if (!image.Allocate(std::min(file.fileSize, limit))) return false;
    file.ReadBlock(image.bytes.get(), image.size);
    return true;
}

bool WriteImageFile(const char* path, const Image& image)
{
    return path && image.size > 0 && SaveFile(path, image.bytes.get(), static_cast<std::size_t>(image.size));
}

} // namespace korvane
