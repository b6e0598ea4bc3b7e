#include "desk/Placement.h"
#include "support/Table.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

/// Left, top, width, height and state of a placement; those of the window, and what is kept of it.
TEST(Placement, IsTakenAndKeptWhole) {
  const auto told = [](const TableRow& row) {
    RecordingHost host;
    Form window(host, "frmAny", "");
    std::optional<clsWindowConfig> config;
    if (row.Count() > 1) {
      config.emplace();
      config->lngLeft = row.Int(0);
      config->lngTop = row.Int(1);
      config->lngWidth = row.Int(2);
      config->lngHeight = row.Int(3);
      config->lngWindowState = row.Int(4);
    }
    ApplyPlacement(config, window);
    std::string text;
    for (const int fact :
         {window.Left, window.Top, window.Width, window.Height, window.WindowState})
      text += std::to_string(fact) + " ";
    const auto kept = PlacementOf(window);
    if (!kept) return text + "nothing";
    for (const int fact :
         {kept->lngLeft, kept->lngTop, kept->lngWidth, kept->lngHeight, kept->lngWindowState})
      text += " " + std::to_string(fact);
    return text;
  };
  ExpectTable(told, R"(
none -> 0 0 0 0 0 nothing
15, -30, 9000, 6000, 0 -> 15 -30 9000 6000 0  15 -30 9000 6000 0
15, -30, 9000, 6000, 2 -> 15 -30 9000 6000 2  15 -30 9000 6000 2
# Minimized is what nobody wants back.
15, -30, 9000, 6000, 1 -> 15 -30 9000 6000 1  15 -30 9000 6000 0
15, -30, 0, 6000, 0 -> 15 -30 0 6000 0 nothing
15, -30, 1, 6000, 0 -> 15 -30 1 6000 0  15 -30 1 6000 0
)");
}

}  // namespace
}  // namespace tarnview
