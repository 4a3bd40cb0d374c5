#include "bench/ControlsBench.h"

#include <chrono>
#include <utility>

#include <QCoreApplication>
#include <QWidget>

#include "bench/support/Figures.h"
#include "color/DistinctColors.h"
#include "favourites/frmFav.h"

namespace tavrelkin::bench {

namespace {

constexpr int kMoves = 1000;

void updateBar(benchmark::State& state, zrColorCHBar& bar, Int32 channel) {
  const Int32 before = std::exchange(bar.propColorChannel, channel);
  for (auto _ : state)
    bar.Update();
  bar.propColorChannel = before;
}

void drawSuggestions(benchmark::State& state, frmVesk& window) {
  for (auto _ : state)
    window.drawSuggestions(&window.imgScreen.Graphics());
}

void drawColorBlind(benchmark::State& state, frmVesk& window) {
  for (auto _ : state)
    window.drawColorBlind(&window.imgScreen.Graphics());
}

Color noiseAt(std::uint32_t number) {
  return Color{number * 2654435761U >> 8};
}

// The table has one entry more than the palette has cells.
void paintPalette(benchmark::State& state) {
  constexpr std::uint32_t cells = 256;
  const Ref<frmFav> window = New<frmFav>();
  const Ref<zrClut> table = New<zrClut>();
  table->Count = cells;
  table->aColors.resize(cells + 1);
  for (std::uint32_t i = 0; i <= cells; ++i)
    table->Add(noiseAt(i));
  window->imgClut.SetClut(table);
  for (auto _ : state)
    window->imgClut.Event_Paint(window->imgClut.Graphics());
}

// Uses a sample at zoom step 1 in which all pixels differ.
void findDistinctColors(benchmark::State& state, std::size_t most) {
  const Ref<Picture> picture = NewPicture(103, 49, 32);
  for (Int32 y = 0; y < picture->Height(); ++y) {
    for (Int32 x = 0; x < picture->Width(); ++x)
      picture->Graphics().Pixel(x, y, noiseAt(static_cast<std::uint32_t>(y * picture->Width() + x)));
  }
  std::vector<Color> found;
  for (auto _ : state)
    benchmark::DoNotOptimize(found = distinctColors(*picture, most));
  if (found.size() != most) state.SkipWithError("The noise has too few colours.");
}

ScreenPoint placeOn(const zrColorCHBar& bar, int column) {
  const QPoint at = bar.native().mapToGlobal(QPoint(column, 10));
  return {at.x(), at.y()};
}

// The pointer moves only after the previous move has changed the bar, so that no move is lost or waits. One iteration
// is one move.
void dragBar(benchmark::State& state, zrColorCHBar& bar, test::Hand& hand) {
  const auto moveTo = [&](int column) {
    hand.moveTo(placeOn(bar, column));
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (bar.Lastx != column && std::chrono::steady_clock::now() < end)
      QCoreApplication::processEvents();
    if (bar.Lastx != column) state.SkipWithError("A move was lost.");
  };
  bar.SetValue(0);
  hand.moveTo(placeOn(bar, bar.Lastx));
  hand.pressButton();
  int step = 0;
  for (auto _ : state)
    moveTo(6 + ++step % 100);
  hand.releaseButton();
  while (QWidget::mouseGrabber() || bar.propBaseColor.red() != bar.Value)
    QCoreApplication::processEvents();
}

}  // namespace

void addControlBenchmarks(frmVesk& window, test::Hand& hand) {
  zrColorCHBar& red = window.cmdMixer[0];
  const auto update = [&red](Int32 channel) {
    return [&red, channel](benchmark::State& state) { updateBar(state, red, channel); };
  };
  add("Update RGB", update(0))->MinTime(0.1);
  add("Update HSV", update(3))->MinTime(0.1);
  add("Update CMY", update(6))->MinTime(0.1);
  add("drawSuggestions", [&window](benchmark::State& state) { drawSuggestions(state, window); })->MinTime(0.1);
  add("drawColorBlind", [&window](benchmark::State& state) { drawColorBlind(state, window); })->MinTime(0.1);
  add("palette", paintPalette)->MinTime(0.1);
  for (const std::size_t most : {112u, 255u}) {
    add("distinct " + std::to_string(most), [most](benchmark::State& state) {
      findDistinctColors(state, most);
    })->MinTime(0.1);
  }
  add("drag", [&red, &hand](benchmark::State& state) { dragBar(state, red, hand); })->Iterations(kMoves);
}

void printControlRows(const Medians& medians) {
  for (const char* family : {"RGB", "HSV", "CMY"}) {
    printRow(std::string("Update of a bar at 121 by 20, ") + family, "at most 30 µs",
             fixed(medians[std::string("Update ") + family] * 1e3, 1) + " µs");
  }
  printRow("drawSuggestions at 408 by 192", "at most 0.3 ms", fixed(medians["drawSuggestions"], 3) + " ms");
  printRow("drawColorBlind", "at most 50 µs", fixed(medians["drawColorBlind"] * 1e3, 1) + " µs");
  printRow("paint of a palette of 256 cells", "at most 0.3 ms", fixed(medians["palette"], 3) + " ms");
  printRow("112 distinct colours of 103 by 49 pixels of noise", "at most 3 ms",
           fixed(medians["distinct 112"], 3) + " ms");
  printRow("255 distinct colours of 103 by 49 pixels of noise", "at most 8 ms",
           fixed(medians["distinct 255"], 3) + " ms");
  printRow("a drag on a bar: moves of the pointer handled, one by one", "at least 1000 a second",
           fixed(1e3 / medians["drag"], 0) + " a second");
}

}  // namespace tavrelkin::bench
