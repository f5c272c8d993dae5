// The page about the instrument: how it comes and goes.
#include "editor/elements/CAboutPage.h"

#include <utility>

#include "editor/layout/Layout.h"
#include "editor/layout/Skin.h"
#include "gui/window/CPluginUI.h"

namespace korvane {

void CAboutPage::MouseEvent(int x, int y, int, int type)
{
    if (!window || type != mouse::LeftDown) return;
    if (snapshot)
        Hide();
    else if (kLogoArea.Contains(x, y))
        Show();
}

void CAboutPage::Tick(bool, int, int)
{
    if (!snapshot || !window || !window->IsDirty()) return;
    snapshot->Draw(window->GetDrawBuffer(), {0, 0, snapshot->width, snapshot->height}, {0, 0});
}

void CAboutPage::Show()
{
    const CDrawBuffer& page = *window->GetDrawBuffer();
    auto drawn = std::make_unique<CDrawBuffer>();
    if (!drawn->Create(page.height, page.width, false)) return;
    const Rect whole{0, 0, page.width, page.height};
    page.Draw(drawn.get(), whole, {0, 0});
    drawn->DrawBitmap(GetBitmap(image::About), whole, {0, 0});
    snapshot = std::move(drawn);
    SetActive(true);
    window->SetDirty(true);
}

void CAboutPage::Hide()
{
    snapshot.reset();
    SetActive(false);
    window->RefreshAll();
    window->SetDirty(true);
}

} // namespace korvane
