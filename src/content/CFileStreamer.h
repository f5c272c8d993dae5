// Binary file reader and writer.
#pragma once

#include <cstdint>
#include <cstdio>

#include "platform/Files.h"

namespace korvane {

/// One open file with its own idea of the position and a text for the last error. A short-lived local object of the
/// thread that reads or writes; files above 2 GiB - 1 bytes are refused.
///
/// A read zeroes its destination first and never stops its caller: what the file lacks reads as zeros.
class CFileStreamer {
public:
    CFileStreamer() = default;
    CFileStreamer(const CFileStreamer&) = delete;
    CFileStreamer& operator=(const CFileStreamer&) = delete;
    virtual ~CFileStreamer() { Close(); }

    bool Open(const char* filePath);   // for reading
    bool Create(const char* filePath); // for writing, empty
    void Close();

    std::uint8_t ReadByte();
    std::uint16_t ReadWord();           // little-endian
    std::uint32_t ReadDword();          // little-endian
    std::uint32_t ReadDwordBigEndian(); // 4 bytes
    std::uint16_t ReadWordBigEndian();  // 2 bytes
    void ReadBlock(void* buffer, std::int32_t count);

    /// Writes at once, past any buffer, so that a full disk shows here.
    bool Write(const void* buffer, std::int32_t count);

    /// To an absolute offset, 0..fileSize - 1. A refused seek leaves the position.
    bool Seek(std::int64_t offset);
    bool Skip(std::int64_t count) { return Seek(position + count); }

    char errorText[1024] = "unknown"; // of the last operation that failed
    char path[512] = "";              // of the open file, cut to fit; empty when none
    std::FILE* file = nullptr;
    std::int32_t fileSize = 0; // bytes, when it was opened
    std::int32_t position = 0; // bytes; beyond fileSize after a read that crossed the end

private:
    bool Fail(const char* reason);
    bool Attach(std::FILE* opened, const char* filePath);
};

} // namespace korvane
