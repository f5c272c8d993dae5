// The items of a list that drops down.
#pragma once

#include <cstdint>

namespace korvane {

namespace item {
enum : std::uint8_t {
    Choice,    // becomes the list's value
    Command,   // is told and leaves the value
    Separator, // a line
    Heading
};
}

struct DropDownItem {
    bool marked = false;        // looks like the current choice
    bool notSelectable = false; // separators and headings always are
    std::uint8_t kind = item::Choice;
    char text[258] = "";
    DropDownItem* next = nullptr;
};

/// In their order; an item's number counts all of them, separators too.
class DropDownItems {
public:
    DropDownItems() = default;
    DropDownItems(const DropDownItems&) = delete;
    ~DropDownItems() { Clear(); }

    /// text  at most 257 bytes count; null: none
    DropDownItem& Add(const char* text, std::uint8_t kind);
    void Clear();
    DropDownItem* At(int index) const; // null when there is none
    int Count() const { return count; }
    DropDownItem* First() const { return first; }

private:
    DropDownItem* first = nullptr;
    DropDownItem** end = &first;
    int count = 0;
};

} // namespace korvane
