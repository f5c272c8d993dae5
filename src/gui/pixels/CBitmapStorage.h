// The skin: every image of the process, by its number.
#pragma once

#include <mutex>

#include "gui/pixels/CBitmap.h"

namespace korvane {

/// Images are read once and live until the module unloads; all editors share them. Any thread: an editor may be opening
/// while others draw.
class CBitmapStorage {
public:
    CBitmapStorage() = default;
    CBitmapStorage(const CBitmapStorage&) = delete;
    virtual ~CBitmapStorage();

    /// False when the path is null or no image is there. An image that is there already is not read again.
    bool LoadBitmap(const char* path, int id);
    /// Null when there is none with that number.
    CBitmap* FindBitmap(int id) const;

private:
    std::mutex loading;
    std::atomic<CBitmap*> first{nullptr}; // the list only grows
};

/// The process's one.
CBitmapStorage& Bitmaps();

} // namespace korvane
