// The parts of the tool window and its controls, measured separately with the toolkit on a real X server: a sample of
// the screen, setting a colour while idle and while following, painting the preview and the guides.
//
// The unfolded window is on a separate X server, beside another program's window whose pixels all differ; the pointer
// rests over that window. The figures are medians of several rounds. Colours are set in the same way as in a handler.
// Between two of them the event loop runs for some milliseconds, so that frames and turns of the thread continue.

#include <chrono>
#include <cstdlib>
#include <string>

#include <QApplication>
#include <QScreen>

#include <benchmark/benchmark.h>

#include "app/App.h"
#include "bench/ControlsBench.h"
#include "bench/support/Figures.h"
#include "bench/support/Medians.h"
#include "driver/Process.h"
#include "driver/ToolWindow.h"
#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/system/System.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/toolkit/Runtime.h"
#include "toolwindow/PreviewGrid.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin::bench {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr ScreenPoint kPointer{820, 570};

void runEventLoop(std::chrono::milliseconds span) {
  const auto end = Clock::now() + span;
  while (Clock::now() < end)
    QCoreApplication::processEvents();
}

void sample(benchmark::State& state, frmVesk& window) {
  for (auto _ : state) {
    desktop().screenReader().beginTurn();
    window.drawSys(kPointer.x, kPointer.y);
  }
}

// Reads pixels column by column, as a sample does. The time is that of one read.
void readPixels(benchmark::State& state, const frmVesk& window) {
  const PreviewGrid grid(1, window.imgScreen.Width, window.imgScreen.Height);
  desktop().screenReader().beginTurn();
  Int32 x = 0;
  Int32 y = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(System::Pixel(kPointer.x - grid.reachX() + x, kPointer.y - grid.reachY() + y));
    if (++y < grid.rows) continue;
    y = 0;
    x = (x + 1) % grid.columns;
  }
}

// Two successive colours always differ. Some are web-safe, which hides two controls.
Color nextColor() {
  static std::uint32_t number = 0;
  ++number;
  return Color{number % 4 == 0 ? (number / 4 % 2 == 0 ? 0x336699U : 0xCC9966U) : number * 2654435761U >> 8};
}

void setColor(benchmark::State& state, frmVesk& window) {
  for (auto _ : state) {
    runEventLoop(3ms);
    const Color color = nextColor();
    const auto begun = Clock::now();
    deliver(window, [&] { window.setColor(color, false); });
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begun).count());
  }
}

void drawScreen(benchmark::State& state, frmVesk& window) {
  for (auto _ : state)
    window.drawScreen(&window.imgScreen.Graphics());
}

void drawGrid(benchmark::State& state, frmVesk& window) {
  for (auto _ : state)
    window.drawGrid();
}

void addAll(frmVesk& window) {
  for (const Int32 step : {1, 2, 3}) {
    add("sample " + std::to_string(step), [&window, step](benchmark::State& state) {
      window.ScreenZoomValue = step;
      sample(state, window);
      window.ScreenZoomValue = 1;
    })->MinTime(0.1);
  }
  add("Pixel", [&](benchmark::State& state) { readPixels(state, window); })->MinTime(0.1);
  add("drawScreen", [&](benchmark::State& state) { drawScreen(state, window); })->MinTime(0.1);
  add("drawGrid", [&](benchmark::State& state) { drawGrid(state, window); })->MinTime(0.1);
  add("setColor idle", [&](benchmark::State& state) { setColor(state, window); })->UseManualTime()->Iterations(100);
  add("setColor following",
      [&](benchmark::State& state) {
        window.mnuFollow();
        setColor(state, window);
        window.mnuFollow();
      })
      ->UseManualTime()
      ->Iterations(100);
}

void printRows(const Medians& medians) {
  const auto milliseconds = [&](const std::string& name) { return fixed(medians[name], 3) + " ms"; };
  printRow("rate of the display, as the toolkit reports it", {},
           fixed(QGuiApplication::primaryScreen()->refreshRate(), 2) + " Hz");
  printRow("one sample at step 1 (5047 reads, yields included)", "at most 1 ms", milliseconds("sample 1"));
  printRow("one sample at step 2 (1275 reads)", {}, milliseconds("sample 2"));
  printRow("one sample at step 3 (595 reads)", {}, milliseconds("sample 3"));
  printRow("one read of System.Pixel within a sample", {}, fixed(medians["Pixel"] * 1e6, 1) + " ns");
  printRow("drawScreen", {}, milliseconds("drawScreen"));
  printRow("drawGrid", {}, milliseconds("drawGrid"));
  const double idle = medians["setColor idle"];
  const double following = medians["setColor following"];
  printRow("setColor, unfolded, idle", "at most 1 ms", milliseconds("setColor idle"));
  printRow("setColor, unfolded, following", "at most 1 ms; at most 1.5 times apart",
           milliseconds("setColor following") + "; " + fixed(following / idle, 2) + " times");
}

int run(test::X11Client& client) {
  const Runtime runtime{std::string()};
  const auto app = New<App>();
  app->AddMenuHandlers();
  const Ref<frmVesk> window = frmVesk::Default();
  window->Height = 400;
  runEventLoop(500ms);

  test::Hand hand(client);
  addAll(*window);
  addControlBenchmarks(*window, hand);
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  printRows(medians);
  printControlRows(medians);
  window->Close();
  shutDownRuntime();
  return 0;
}

}  // namespace
}  // namespace tavrelkin::bench

int main(int argc, char** argv) {
  using namespace tavrelkin::test;
  benchmark::Initialize(&argc, argv);
  const XServer server;
  setenv("DISPLAY", server.display().c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  unsetenv("WAYLAND_DISPLAY");
  X11Client client(server.display());
  const ForeignWindow foreign(client, {700, 500, 240, 140});
  client.movePointer(tavrelkin::bench::kPointer.x, tavrelkin::bench::kPointer.y);
  return tavrelkin::bench::run(client);
}
