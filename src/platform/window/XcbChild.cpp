// Creates the editor's window.
#include "platform/window/XcbChild.h"

namespace korvane {

static constexpr std::uint32_t kEvents = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_BUTTON_PRESS |
                                         XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION |
                                         XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW |
                                         XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                         XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
static constexpr std::uint32_t kEventsOfParent = XCB_EVENT_MASK_STRUCTURE_NOTIFY;

void ListenToParent(const XcbConnection& connection, xcb_window_t parent)
{
    xcb_change_window_attributes(connection, parent, XCB_CW_EVENT_MASK, &kEventsOfParent);
}

/// The number of the X error, and what it was that failed.
static int Create(const XcbConnection& connection, xcb_window_t window, xcb_window_t parent, const XcbVisual& visual,
                  Size size, const char*& what)
{
    what = "the parent is no window";
    int error = connection.ErrorOf(
        xcb_change_window_attributes_checked(connection, parent, XCB_CW_EVENT_MASK, &kEventsOfParent));
    if (error != 0) return error;

    // A visual of its own with all that belongs to it, so that the parent's does not matter.
    what = "the server refuses the colours";
    const xcb_colormap_t colours = xcb_generate_id(connection);
    error = connection.ErrorOf(
        xcb_create_colormap_checked(connection, XCB_COLORMAP_ALLOC_NONE, colours, connection.screen->root, visual.id));
    if (error != 0) return error;
    what = "the server refuses the window";
    const std::uint32_t values[] = {0, kEvents, colours};
    return connection.ErrorOf(xcb_create_window_checked(
        connection, visual.depth, window, parent, 0, 0, static_cast<std::uint16_t>(size.width),
        static_cast<std::uint16_t>(size.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
        XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values));
}

xcb_window_t CreateChild(const XcbConnection& connection, xcb_window_t parent, const XcbVisual& visual, Size size,
                         std::string& error)
{
    const xcb_window_t window = xcb_generate_id(connection);
    const char* what = nullptr;
    if (const int number = Create(connection, window, parent, visual, size, what)) {
        error = std::string(what) + " (X error " + std::to_string(number) + ")"; // -1: the connection ended
        return XCB_NONE;
    }
    constexpr std::uint32_t kEmbedding[] = {0, 1}; // version, mapped: strict hosts show nothing without it
    const xcb_atom_t embedding = connection.Atom(atom::XembedInfo);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, embedding, embedding, 32, 2, kEmbedding);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 6, "Window");
    return window;
}

} // namespace korvane
