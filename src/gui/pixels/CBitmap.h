// An image of the skin.
#pragma once

#include <atomic>

#include "gui/pixels/CGraphicBuffer.h"

namespace korvane {

/// A buffer that is read from a file: 24-bit BMP, or TGA without compression, of 24 bits or 32 with alpha.
class CBitmap : public CGraphicBuffer {
public:
    explicit CBitmap(int number) : id(number) {}
    ~CBitmap() override = default;

    virtual int GetId() const { return id; }
    /// Whether an image was read; what was here before stays otherwise, unless memory ends. A TGA file that ends early
    /// counts, as long as it has a byte for each pixel or they are at most 1 Mi: what it lacks repeats the last row, or
    /// is black and invisible. Rows come from below whatever the file says.
    /// path  as the engine writes paths
    virtual bool Load(const char* path);

    const int id;
    std::atomic<CBitmap*> next{nullptr}; // of the storage's list
};

} // namespace korvane
