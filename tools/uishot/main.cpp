// korvane-uishot: a picture of a window after what a script does with it, without a display.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "demo/DemoEditor.h"
#include "demo/Picture.h"
#include "demo/ShownEditor.h"
#include "uishot/Script.h"

namespace korvane {
namespace {

using MakeContent = std::unique_ptr<CSynthEditor> (*)(std::unique_ptr<Window>);

struct Content {
    const char* name;
    MakeContent make;
};

template <class Editor>
std::unique_ptr<CSynthEditor> Make(std::unique_ptr<Window> window)
{
    return std::make_unique<Editor>(std::move(window));
}

constexpr Content kContents[] = {{"editor", Make<demo::ShownEditor>}, {"demo", Make<demo::DemoEditor>}};

void Usage(std::FILE* out)
{
    std::fputs("Usage: korvane-uishot CONTENT FILE.png [OPTION]...\n"
               "  CONTENT          editor: the instrument's, over an engine that plays as long as ticks last;\n"
               "                   demo: every kind of control\n"
               "  -s FILE          plays a script first; - is the standard input\n"
               "  -e COMMANDS      plays these\n"
               "  -x N             shows every pixel as N by N, 1 to 8\n"
               "Commands:\n",
               out);
    std::fputs(uishot::Script::kHelp, out);
}

/// What the window shows, every pixel as a block.
void Keep(const MemoryWindow& window, int zoom, const std::string& path)
{
    demo::Picture picture(window.size.width * zoom, window.size.height * zoom);
    cairo_surface_flush(picture.surface);
    unsigned char* data = cairo_image_surface_get_data(picture.surface);
    const int stride = cairo_image_surface_get_stride(picture.surface);
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const std::uint32_t pixel = window.shown[static_cast<std::size_t>(y / zoom) * window.size.width + x / zoom];
            const std::uint32_t opaque = pixel | 0xFF000000;
            std::memcpy(data + static_cast<std::ptrdiff_t>(y) * stride + 4 * x, &opaque, 4);
        }
    cairo_surface_mark_dirty(picture.surface);
    picture.SavePng(path);
}

struct Options {
    std::string content, picture, script, commands;
    int zoom = 1;
};

bool Read(int count, char** words, Options& options)
{
    std::string* places[] = {&options.content, &options.picture};
    int next = 0;
    for (int n = 1; n < count; ++n) {
        const std::string word = words[n];
        if (word == "-s" || word == "-e" || word == "-x") {
            if (++n == count) return false;
            if (word == "-s")
                options.script = words[n];
            else if (word == "-e")
                options.commands = words[n];
            else
                options.zoom = std::atoi(words[n]);
        } else if (next == 2)
            return false;
        else
            *places[next++] = word;
    }
    return next == 2 && options.zoom >= 1 && options.zoom <= 8;
}

void Play(uishot::Script& script, const Options& options)
{
    if (options.script == "-")
        script.Play(std::cin);
    else if (!options.script.empty()) {
        std::ifstream file(options.script);
        if (!file) throw std::runtime_error("cannot read " + options.script);
        script.Play(file);
    }
    std::istringstream commands(options.commands);
    script.Play(commands);
}

void Shoot(const Options& options)
{
    for (const Content& content : kContents) {
        if (options.content != content.name) continue;
        auto made = std::make_unique<MemoryWindow>();
        MemoryWindow& window = *made;
        const std::unique_ptr<CSynthEditor> editor = content.make(std::move(made));
        const Size size = editor->GetEditorSize();
        if (!editor->Open(size.height, size.width, nullptr)) throw std::runtime_error("the window does not open");
        const auto keep = [&](const std::string& path) { Keep(window, options.zoom, path); };
        uishot::Script script(*editor, window, keep);
        Play(script, options);
        keep(options.picture);
        return;
    }
    throw std::runtime_error("there is no content \"" + options.content + "\"");
}

} // namespace
} // namespace korvane

int main(int count, char** words)
{
    if (count == 2 && (std::strcmp(words[1], "-h") == 0 || std::strcmp(words[1], "--help") == 0)) {
        korvane::Usage(stdout);
        return 0;
    }
    korvane::Options options;
    if (!korvane::Read(count, words, options)) {
        korvane::Usage(stderr);
        return 2;
    }
    try {
        korvane::Shoot(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "korvane-uishot: %s\n", error.what());
        return 1;
    }
    return 0;
}
