// BMP and TGA files into pixels.
#include "gui/pixels/CBitmap.h"

#include <algorithm>
#include <vector>

#include "content/CFileStreamer.h"

namespace korvane {

namespace {

constexpr int kBmp = 0x4D42; // "BM"
constexpr int kTrueColor = 2;

constexpr std::int64_t kCheapPixels = 1 << 20; // a header of that many costs little, whatever follows it

/// A row of the file; what the file lacks of it stays as it was.
void ReadRow(CFileStreamer& file, std::vector<std::uint8_t>& row)
{
    const auto there =
        std::clamp<std::int64_t>(std::int64_t{file.fileSize} - file.position, 0, static_cast<std::int64_t>(row.size()));
    if (there > 0) file.ReadBlock(row.data(), static_cast<std::int32_t>(there));
}

/// A new image of that size and its rows, which come in the order of the memory.
template <int pixelBytes>
bool ReadRows(CFileStreamer& file, CBitmap& bitmap, int height, int width, std::size_t rowBytes)
{
    bitmap.Free(); // an image of the same size would keep its plane, or its lack of one
    if (!bitmap.Create(height, width, pixelBytes == 4)) return false;
    std::vector<std::uint8_t> row(rowBytes);
    std::uint32_t* pixels = bitmap.pixels.get();
    std::uint8_t* alpha = bitmap.alpha.get();
    for (int y = 0; y < height; ++y, pixels += width, alpha += pixelBytes == 4 ? width : 0) {
        ReadRow(file, row);
        const std::uint8_t* bytes = row.data();
        for (int x = 0; x < width; ++x, bytes += pixelBytes) {
            pixels[x] = static_cast<Color>(bytes[0] | bytes[1] << 8 | bytes[2] << 16);
            if constexpr (pixelBytes == 4) alpha[x] = bytes[3];
        }
    }
    return true;
}

/// After the signature.
bool ReadBmp(CFileStreamer& file, CBitmap& bitmap)
{
    if (file.ReadDword() > static_cast<std::uint32_t>(file.fileSize)) return false;
    file.ReadDword();
    const std::uint32_t offset = file.ReadDword();
    file.ReadDword(); // size of the header
    const std::uint32_t width = file.ReadDword(), height = file.ReadDword();
    const int planes = file.ReadWord(), bits = file.ReadWord();
    const std::uint32_t compression = file.ReadDword();
    if (width == 0 || height == 0 || planes != 1 || bits != 24 || compression != 0) return false;
    const std::uint64_t rowBytes = (3 * std::uint64_t{width} + 3) / 4 * 4;
    if (rowBytes > INT32_MAX || height > INT32_MAX) return false;
    if (offset + height * rowBytes > static_cast<std::uint64_t>(file.fileSize) || !file.Seek(offset)) return false;
    return ReadRows<3>(file, bitmap, static_cast<int>(height), static_cast<int>(width), rowBytes);
}

bool ReadTga(CFileStreamer& file, CBitmap& bitmap)
{
    const int identifierBytes = file.ReadByte(), colorMap = file.ReadByte(), type = file.ReadByte();
    if (colorMap != 0 || type != kTrueColor) return false;
    std::uint8_t ignored[9]; // where a colour map would be, the origin
    file.ReadBlock(ignored, sizeof ignored);
    const int width = file.ReadWord(), height = file.ReadWord(), bits = file.ReadByte();
    file.ReadByte(); // the descriptor: whatever it says, the first row is the bottom one
    if (width == 0 || height == 0 || (bits != 24 && bits != 32)) return false;
    const std::int64_t pixelCount = std::int64_t{width} * height;
    if (pixelCount > kCheapPixels && pixelCount > file.fileSize) return false;
    if (identifierBytes > 0 && !file.Skip(identifierBytes)) file.position = file.fileSize; // no row is there
    const auto rowBytes = static_cast<std::size_t>(width * bits / 8);
    return bits == 24 ? ReadRows<3>(file, bitmap, height, width, rowBytes)
                      : ReadRows<4>(file, bitmap, height, width, rowBytes);
}

} // namespace

bool CBitmap::Load(const char* path)
{
    CFileStreamer file;
    if (!path || !file.Open(path)) return false;
    if (file.ReadWord() == kBmp) return ReadBmp(file, *this);
    return file.Seek(0) && ReadTga(file, *this);
}

} // namespace korvane
