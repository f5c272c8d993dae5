// What a drag of files asks of the window that it passes.
#pragma once

#include <cstdint>

namespace korvane {

/// An interface's number, in memory order.
struct InterfaceId {
    std::uint8_t bytes[16];

    bool operator==(const InterfaceId&) const = default;
};

inline constexpr InterfaceId kUnknownId{{0, 0, 0, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr InterfaceId kDropTargetId{{0x22, 0x01, 0, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr std::uint32_t kNoInterface = 0x80004002; // E_NOINTERFACE

/// The window's thread. Answers are 0 where nothing is wrong.
class IDropTarget {
public:
    virtual std::uint32_t QueryInterface(const InterfaceId& id, void** answer) = 0;
    virtual std::uint32_t AddRef() = 0;
    virtual std::uint32_t Release() = 0;
    virtual std::uint32_t DragEnter() = 0;
    virtual std::uint32_t DragOver() = 0;
    virtual std::uint32_t DragLeave() = 0;
    /// path  the first of the files, as the engine writes paths; null when something else was dropped
    virtual std::uint32_t Drop(const char* path) = 0;

protected:
    ~IDropTarget() = default;
};

} // namespace korvane
