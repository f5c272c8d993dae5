// What drawing a page costs, in pixels per nanosecond. Vector and plain form stand side by side.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>
#include <vector>

#include "gui/pixels/CDrawBuffer.h"
#include "gui/pixels/Mixing.h"
#include "platform/Files.h"

namespace korvane {

namespace {

constexpr int kPageHeight = 630, kPageWidth = 1065;
constexpr int kRowPixels = 1065;

/// The column items_per_second, in G.
void CountPixels(benchmark::State& state, int perIteration)
{
    state.SetItemsProcessed(state.iterations() * perIteration);
}

/// Rows with all values of opacity.
struct Rows {
    Rows() { std::iota(plane.begin(), plane.end(), std::uint8_t{0}); }

    std::vector<std::uint32_t> to = std::vector<std::uint32_t>(kRowPixels, 0x204060);
    std::vector<std::uint32_t> from = std::vector<std::uint32_t>(kRowPixels, 0xC0E0F0);
    std::vector<std::uint8_t> plane = std::vector<std::uint8_t>(kRowPixels);
};

template <class Source, class Opacity>
void MixRows(benchmark::State& state, Rows& rows, bool plain, Source source, Opacity opacity)
{
    for (auto _ : state) {
        if (plain)
            mixing::MixRowPlain(rows.to.data(), 0, kRowPixels, source, opacity);
        else
            mixing::MixRow(rows.to.data(), kRowPixels, source, opacity);
        benchmark::ClobberMemory();
    }
    CountPixels(state, kRowPixels);
}

void BM_BlendedRow(benchmark::State& state, bool plain)
{
    Rows rows;
    MixRows(state, rows, plain, mixing::Pixels{rows.from.data()}, mixing::Even{100});
}
BENCHMARK_CAPTURE(BM_BlendedRow, vector, false);
BENCHMARK_CAPTURE(BM_BlendedRow, plain, true);

void BM_PlaneRow(benchmark::State& state, bool plain)
{
    Rows rows;
    MixRows(state, rows, plain, mixing::Pixels{rows.from.data()}, mixing::Plane{rows.plane.data()});
}
BENCHMARK_CAPTURE(BM_PlaneRow, vector, false);
BENCHMARK_CAPTURE(BM_PlaneRow, plain, true);

void BM_FaintPlaneRow(benchmark::State& state, bool plain)
{
    Rows rows;
    MixRows(state, rows, plain, mixing::Pixels{rows.from.data()}, mixing::FaintPlane{rows.plane.data(), 100});
}
BENCHMARK_CAPTURE(BM_FaintPlaneRow, vector, false);
BENCHMARK_CAPTURE(BM_FaintPlaneRow, plain, true);

void BM_FillRow(benchmark::State& state, bool plain)
{
    Rows rows;
    MixRows(state, rows, plain, mixing::OneColor{0x123456}, mixing::Even{100});
}
BENCHMARK_CAPTURE(BM_FillRow, vector, false);
BENCHMARK_CAPTURE(BM_FillRow, plain, true);

void BM_GradientRow(benchmark::State& state, bool plain)
{
    Rows rows;
    const mixing::Channels first{}, step{15000, 14000, 13000, 12000};
    for (auto _ : state) {
        (plain ? mixing::MixGradientPlain : mixing::MixGradient)(rows.to.data(), kRowPixels, first, step);
        benchmark::ClobberMemory();
    }
    CountPixels(state, kRowPixels);
}
BENCHMARK_CAPTURE(BM_GradientRow, vector, false);
BENCHMARK_CAPTURE(BM_GradientRow, plain, true);

void BM_DrawPage(benchmark::State& state, bool withAlpha)
{
    CDrawBuffer page;
    CGraphicBuffer image;
    page.Create(kPageHeight, kPageWidth, false);
    image.Create(kPageHeight, kPageWidth, withAlpha);
    for (auto _ : state) image.Draw(&page, {0, 0, kPageWidth, kPageHeight}, {0, 0});
    CountPixels(state, kPageWidth * kPageHeight);
}
BENCHMARK_CAPTURE(BM_DrawPage, opaque, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_DrawPage, alpha, true)->Unit(benchmark::kMicrosecond);

void BM_LoadPage(benchmark::State& state)
{
    std::string bytes(18 + kPageWidth * kPageHeight * 4, '\x55');
    bytes.replace(0, 18,
                  {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, kPageWidth % 256, kPageWidth / 256,
                   static_cast<char>(kPageHeight % 256), kPageHeight / 256, 32, 8});
    const std::string path =
        (std::filesystem::temp_directory_path() / ("korvane_bench." + std::to_string(getpid()))).string();
    std::ofstream(path, std::ios::binary) << bytes;
    for (auto _ : state) {
        CBitmap bitmap(0);
        if (!bitmap.Load(EnginePath(path.c_str()).c_str())) state.SkipWithError("no image");
    }
    std::filesystem::remove(path);
    CountPixels(state, kPageWidth * kPageHeight);
}
BENCHMARK(BM_LoadPage)->Unit(benchmark::kMicrosecond);

void BM_LineOfText(benchmark::State& state)
{
    CDrawBuffer page;
    page.Create(20, kPageWidth, false);
    page.textColor = kWhite;
    for (auto _ : state)
        page.DrawText("The quick brown fox jumps over the lazy dog", 0, 0, kPageWidth, 20, align::Centre, false);
}
BENCHMARK(BM_LineOfText);

void BM_PointerOfAKnob(benchmark::State& state)
{
    CDrawBuffer page;
    page.Create(64, 64, false);
    page.frameWidth = 3;
    for (auto _ : state)
        for (const bool accumulate : {true, false}) page.DrawThickLine(kWhite, 32, 32, 50, 12, accumulate);
}
BENCHMARK(BM_PointerOfAKnob);

} // namespace

} // namespace korvane
