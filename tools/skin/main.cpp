// korvane-skin: draws every image of the editor.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"

namespace korvane::skin {
namespace {

void Draw(Picture& picture, int id)
{
    for (const auto kind : {DrawKeys, DrawFlat, DrawMovers, DrawLights, DrawScores, DrawAbout, DrawPages})
        if (kind(picture, id)) return;
    throw std::logic_error("nothing draws image " + std::to_string(id));
}

void DrawAll(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    for (const SkinImage& image : kSkinImages) {
        const ImageSize& size = SizeOf(image.id);
        Picture picture(size.width, size.height);
        Draw(picture, image.id);
        picture.SaveTga((folder / image.file).string(), size.alpha);
    }
}

} // namespace
} // namespace korvane::skin

int main(int count, char** words)
{
    if (count != 2) {
        std::fputs("Usage: korvane-skin FOLDER\nDraws the editor's images into the folder.\n", stderr);
        return 2;
    }
    if (!korvane::skin::HasFace())
        std::fputs("korvane-skin: Roboto Condensed is not installed (fonts-roboto-unhinted); legends look otherwise\n",
                   stderr);
    try {
        korvane::skin::DrawAll(words[1]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "korvane-skin: %s\n", failure.what());
        return 1;
    }
    return 0;
}
