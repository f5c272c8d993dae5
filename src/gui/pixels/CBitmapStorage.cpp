// The list of the process's images.
#include "gui/pixels/CBitmapStorage.h"

#include <memory>
#include <utility>

namespace korvane {

CBitmapStorage::~CBitmapStorage()
{
    for (CBitmap* bitmap = first; bitmap;) delete std::exchange(bitmap, bitmap->next);
}

bool CBitmapStorage::LoadBitmap(const char* path, int id)
{
    if (!path) return false;
    std::lock_guard guard(loading);
    if (FindBitmap(id)) return true;
    auto bitmap = std::make_unique<CBitmap>(id);
    if (!bitmap->Load(path)) return false;
    std::atomic<CBitmap*>* end = &first;
    while (CBitmap* stored = *end) end = &stored->next;
    *end = bitmap.release(); // whoever finds it finds it read
    return true;
}

CBitmap* CBitmapStorage::FindBitmap(int id) const
{
    CBitmap* bitmap = first;
    while (bitmap && bitmap->GetId() != id) bitmap = bitmap->next;
    return bitmap;
}

CBitmapStorage& Bitmaps()
{
    static CBitmapStorage storage;
    return storage;
}

} // namespace korvane
