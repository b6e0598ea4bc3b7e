#pragma once

#include <iterator>
#include <random>
#include <string>
#include <utility>

#include "ui/RecordingHost.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {

/// A user who tries every control at random. What cannot be done just now is left.
class RandomHand {
 public:
  RandomHand(frmZoneData& window, RecordingHost& host) : window_(window), host_(host) {}

  void Try() {
    static constexpr void (RandomHand::*kKinds[])() = {
        &RandomHand::Field, &RandomHand::Cell,  &RandomHand::Keys,  &RandomHand::Menu,
        &RandomHand::Copy,  &RandomHand::Words, &RandomHand::Graph, &RandomHand::BoostUnit};
    try {
      (this->*kKinds[Below(static_cast<int>(std::size(kKinds)))])();
    } catch (const CannotDo&) {
    }
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  std::string Number() { return std::to_string(Below(700) - 300); }
  void Do(const char* control, int index, const Action& action) {
    window_.Find(control, index)->Do(action);
  }
  Grid& Select() {
    Grid& grid = window_.Grids.At(SheetGrid{Below(9)});
    const auto place = [&] {
      return GridPlace{1 + Below(grid.Rows() - 1), 1 + Below(grid.Columns() - 1)};
    };
    grid.SelectRange(place(), place());
    grid.SetFocus();
    return grid;
  }
  void Field() {
    constexpr int kZones[] = {0, 1, 2, 3, 4, 6, 8, 10, 13, 17, 21, 112, 225, 243, 246, 255};
    const int zone = kZones[Below(std::size(kZones))];
    if (Below(2) == 0) return Do("updZone", zone, {"step", {Below(2) == 0 ? "up" : "down"}});
    Do("txtZone", zone, {"type", {Number()}});
  }
  void Cell() {
    Grid& grid = Select();
    const GridPlace at = grid.Current();
    grid.Do({"cell", {std::to_string(at.row), std::to_string(at.column), Number()}});
  }
  void Keys() {
    constexpr const char* kKeys[] = {"Plus", "Shift+Minus", "Ctrl+I", "Ctrl+M", "Ctrl+V"};
    Select();
    host_.clipboard = Below(2) == 0 ? Number() : Number() + "\t" + Number() + "\n";
    window_.Press(*ParseKeys(kKeys[Below(std::size(kKeys))]));
  }
  void Menu() {
    MenuItem* const items[] = {&window_.mnuApplyOffset, &window_.mnuCopytoDatalog,
                               &window_.mnuCopyOffset, &window_.mnuEditReset};
    host_.work = [this](Form& form) {
      form.Find("txtOffset")->Do({"type", {Number()}});
      form.Find("cmdOK")->Do({"click", {}});
    };
    Select().Do({"popup", {}});
    items[Below(4)]->Do({"click", {}});
  }
  void Copy() {
    host_.work = [this](Form& form) {
      form.Find("chkOptions", Below(7))->Do({"click", {}});
      form.Find("cmdOK")->Do({"click", {}});
    };
    window_.cmdCopyBenchmark.Press();
  }
  void Words() {
    constexpr std::pair<const char*, int> kBoxes[] = {{"chkMisc", 0},  {"chkMisc", 3},
                                                      {"chkMisc", 4},  {"chkBoost", 0},
                                                      {"chkBoost", 1}, {"chkIdle", 1}};
    constexpr std::pair<const char*, int> kLists[] = {
        {"cboEngineSize", -1}, {"cboMAPID", -1}, {"cboAutoTune", 0}, {"cboAutoTune", 1}};
    const std::string date = DateText(MakeDate(2001 + Below(5), 1 + Below(12), 1));
    const auto [box, boxIndex] = kBoxes[Below(std::size(kBoxes))];
    const auto [list, listIndex] = kLists[Below(std::size(kLists))];
    switch (Below(5)) {
      case 0:
        return Do("txtChipDate", -1, {"type", {date}});
      case 1:
        return Do("txtTrim", -1, {"type", {Number()}});
      case 2:
        return Do("txtNotes", -1, {"type", {Number()}});
      case 3:
        return Do(box, boxIndex, {"click", {}});
      default:
        return Do(list, listIndex, {"choose", {"#" + std::to_string(Below(3))}});
    }
  }
  void Graph() {
    host_.work = [this](Form& form) {
      form.Find("cboRow")->Do({"choose", {"#" + std::to_string(Below(6))}});
      form.Find("cboColumn")->Do({"choose", {"#" + std::to_string(Below(16))}});
      form.Find("txtValue")->Do({"type", {Number()}});
      form.Find("cmdOK")->Do({"click", {}});
    };
    Do("cmdGraph", 3 * Below(2), {"click", {}});
  }
  void BoostUnit() {
    host_.answers = {{Below(2) == 0 ? Answer::Kind::Yes : Answer::Kind::No}};
    Do("radBoost", Below(2), {"click", {}});
  }

  frmZoneData& window_;
  RecordingHost& host_;
  std::mt19937 random_{11};
};

}  // namespace tarnview
