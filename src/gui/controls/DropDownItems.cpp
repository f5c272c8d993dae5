// The items of a list that drops down.
#include "gui/controls/DropDownItems.h"

#include <cstring>

namespace korvane {

DropDownItem& DropDownItems::Add(const char* text, std::uint8_t kind)
{
    auto* const added = new DropDownItem;
    added->kind = kind;
    added->notSelectable = kind == item::Separator || kind == item::Heading;
    if (text) std::memcpy(added->text, text, strnlen(text, sizeof added->text - 1));
    *end = added;
    end = &added->next;
    ++count;
    return *added;
}

void DropDownItems::Clear()
{
    while (first) {
        DropDownItem* const after = first->next;
        delete first;
        first = after;
    }
    end = &first;
    count = 0;
}

DropDownItem* DropDownItems::At(int index) const
{
    DropDownItem* found = index < 0 ? nullptr : first;
    for (; found && index > 0; --index) found = found->next;
    return found;
}

} // namespace korvane
