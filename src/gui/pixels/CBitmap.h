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
    /// Whether an image was read. An image that ends early counts: the rows that it lacks repeat the last that it has.
    /// path  as the engine writes paths
    virtual bool Load(const char* path);

    const int id;
    std::atomic<CBitmap*> next{nullptr}; // of the storage's list
};

} // namespace korvane
