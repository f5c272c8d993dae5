// Binary file reader and writer.
#include "content/CFileStreamer.h"

#include <sys/types.h>

#include <bit>
#include <climits>
#include <cstring>

#include "content/PathText.h"

namespace korvane {

bool CFileStreamer::Fail(const char* reason)
{
    SetText(errorText, reason);
    return false;
}

bool CFileStreamer::Attach(std::FILE* opened, const char* filePath)
{
    if (!opened) return Fail("Failed to open the file");
    file = opened;
    fileSize = position = 0;
    SetText(path, filePath);
    return true;
}

bool CFileStreamer::Open(const char* filePath)
{
    Close();
    std::FILE* opened = OpenForReading(filePath);
    if (!opened) return Fail("Failed to open the file");
    fseeko(opened, 0, SEEK_END);
    const off_t size = ftello(opened);
    rewind(opened);
    if (size < 0 || size > INT_MAX) {
        std::fclose(opened);
        return Fail("Failed to open the file");
    }
    Attach(opened, filePath);
    fileSize = static_cast<std::int32_t>(size);
    return true;
}

bool CFileStreamer::Create(const char* filePath)
{
    Close();
    if (!Attach(OpenForWriting(filePath), filePath)) return false;
    std::setvbuf(file, nullptr, _IONBF, 0);
    return true;
}

void CFileStreamer::Close()
{
    if (file) std::fclose(file);
    file = nullptr;
    path[0] = '\0';
}

void CFileStreamer::ReadBlock(void* buffer, std::int32_t count)
{
    if (count <= 0) return;
    std::memset(buffer, 0, static_cast<std::size_t>(count));
    if (!file) {
        Fail("No File Open");
        return;
    }
    const bool delivered = std::fread(buffer, 1, static_cast<std::size_t>(count), file) > 0;
    const std::int64_t end = std::int64_t{position} + count;
    if (delivered || end == fileSize)
        position = static_cast<std::int32_t>(end < INT_MAX ? end : INT_MAX);
    else
        Fail("Unknown File Error");
}

std::uint8_t CFileStreamer::ReadByte()
{
    std::uint8_t value;
    ReadBlock(&value, sizeof value);
    return value;
}

std::uint16_t CFileStreamer::ReadWord()
{
    std::uint8_t bytes[2];
    ReadBlock(bytes, sizeof bytes);
    return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8);
}

std::uint16_t CFileStreamer::ReadWordBigEndian()
{
    const std::uint16_t word = ReadWord();
    return static_cast<std::uint16_t>(word << 8 | word >> 8);
}

std::uint32_t CFileStreamer::ReadDword()
{
    std::uint8_t b[4];
    ReadBlock(b, sizeof b);
    return std::uint32_t{b[0]} | std::uint32_t{b[1]} << 8 | std::uint32_t{b[2]} << 16 | std::uint32_t{b[3]} << 24;
}

std::uint32_t CFileStreamer::ReadDwordBigEndian() { return __builtin_bswap32(ReadDword()); }

bool CFileStreamer::Write(const void* buffer, std::int32_t count)
{
    if (!file) return Fail("No File Open");
    if (count < 0) return Fail("Unknown File Error");
    const auto bytes = static_cast<std::size_t>(count);
    if (std::fwrite(buffer, 1, bytes, file) != bytes) return Fail("Unknown File Error");
    position += count;
    return true;
}

bool CFileStreamer::Seek(std::int64_t offset)
{
    if (!file) return Fail("No File Open");
    if (offset < 0 || offset >= fileSize) return Fail("Wrong Parameter");
    if (fseeko(file, offset, SEEK_SET) != 0) return Fail("Unknown Error");
    position = static_cast<std::int32_t>(offset);
    return true;
}

} // namespace korvane
