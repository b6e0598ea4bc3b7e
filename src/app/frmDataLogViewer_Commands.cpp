// The main window's commands: one table of what each does and when it may run, and the keys.

#include "app/frmAbout.h"
#include "app/frmDataLogViewer.h"
#include "base/Text.h"

namespace tarnview {

std::vector<Command> frmDataLogViewer::FileCommands() {
  const auto loaded = [this] { return log_.gblnSamplesLoaded; };
  return {
      // clang-format off
      {&mnuFileExport, [this] { mnuFileExport_Click(); }, loaded},
      {&mnuFileExit, [this] { Unload(); }, {}},
      {&mnuEditUpdatePreset, [this] { presets_.UpdatePreset(); },
       [this] { return log_.gblnSamplesLoaded && presets_.HasRows(); }},
      {&mnuEditNewPreset, [this] { mnuEditNewPreset_Click(); }, loaded},
      // The log as its logger wrote it, in the program that the desktop has for such files.
      {&mnuToolsDataLogView, [this] { services_.programs.ShellOpen(log_.gstrCurrentFile); },
       loaded},
      {&mnuHelpHelp, [this] { host.ShowHelp(""); }, {}},
      {&mnuHelpAbout, [this] { ShowAbout(); }, {}},
      // clang-format on
  };
}

void frmDataLogViewer::ShowAbout() {
  const clsDataLog& definition = globals_.gclsDataLogDefinition;
  frmAbout window(host, {definition.strName, definition.strVersion, definition.strComments},
                  [this] { StartSysInfo(); });
  window.ShowModal();
}

std::vector<Command> frmDataLogViewer::ViewCommands() {
  const auto loaded = [this] { return log_.gblnSamplesLoaded; };
  const auto drawn = [this] { return graph_.Drawn(); };
  const auto narrower = [this] { return CanZoomIn(); };
  const auto wider = [this] { return CanZoomOut(); };
  return {
      // clang-format off
      {&cmdDrawGraph, [this] { DrawGraph(); }, loaded},
      {&cmdZoomIn, [this] { zoom_.cmdZoomIn_Click(); }, narrower},
      {&cmdZoomOut, [this] { zoom_.cmdZoomOut_Click(); }, wider},
      {&cmdZoomFull, [this] { zoom_.cmdZoomFull_Click(); }, wider},
      {&cmdDataPointLeft, [this] { highlight_.cmdDataPointLeft_Click(); },
       [this] { return graph_.Drawn() && highlight_.CanGoLeft(); }},
      {&cmdDataPointRight, [this] { highlight_.cmdDataPointRight_Click(); },
       [this] { return graph_.Drawn() && highlight_.CanGoRight(); }},
      {&mnuViewZoomIn, [this] { zoom_.cmdZoomIn_Click(); }, narrower},
      {&mnuViewZoomOut, [this] { zoom_.cmdZoomOut_Click(); }, wider},
      {&mnuViewZoomFull, [this] { zoom_.cmdZoomFull_Click(); }, wider},
      {&mnuViewPrevious, [this] { zoom_.ShowPreviousGraph(); }, [this] { return CanGoBack(); }},
      {&mnuViewGoto, [this] { GotoSample(); }, drawn},
      {&mnuViewNewDataTag, [this] { tags_.NewDataTag(); }, drawn},
      {&mnuViewTags, [this] { ShowDataTags(); }, [this] { return CanShowDataTags(); }},
      {&mnuViewZoneInfl, [this] { mnuViewZoneInfl_Click(); },
       [this] { return IsLinkLog() && (log_.gblnSamplesLoaded || log_.gblnZonesLoaded); }},
      // clang-format on
  };
}

std::vector<Command> frmDataLogViewer::ScrollCommands() {
  const auto left = [this] { return graph_.Drawn() && scrolling_.CanGoLeft(); };
  const auto right = [this] { return graph_.Drawn() && scrolling_.CanGoRight(); };
  return {
      // clang-format off
      {&mnuViewScrollLeft, [this] { scrolling_.ScrollLeft(); }, left},
      {&mnuViewScrollRight, [this] { scrolling_.ScrollRight(); }, right},
      {&mnuViewPageLeft, [this] { scrolling_.PageLeft(); }, left},
      {&mnuViewPageRight, [this] { scrolling_.PageRight(); }, right},
      {&mnuViewStart, [this] { scrolling_.ScrollStart(); }, left},
      {&mnuViewFinish, [this] { scrolling_.ScrollFinish(); }, right},
      // clang-format on
  };
}

std::vector<Command> frmDataLogViewer::GraphMenuCommands() {
  const auto drawn = [this] { return graph_.Drawn(); };
  const auto narrower = [this] { return CanZoomIn(); };
  const auto wider = [this] { return CanZoomOut(); };
  const auto set = [this](TextBox& box) { box.Text = std::to_string(highlight_.SelectedSample()); };
  const auto setAndDraw = [this, set](TextBox& box) {
    selection_.Forget();
    set(box);
    DrawGraph();
  };
  return {
      // clang-format off
      {&mnuRightClickDrawGraph, [this] { DrawGraph(); }, [this] { return log_.gblnSamplesLoaded; }},
      {&mnuRightClickZoomIn, [this] { zoom_.cmdZoomIn_Click(); }, narrower},
      {&mnuRightClickZoomOut, [this] { zoom_.cmdZoomOut_Click(); }, wider},
      {&mnuRightClickZoomOutFull, [this] { zoom_.cmdZoomFull_Click(); }, wider},
      {&mnuRightClickPrevGraph, [this] { zoom_.ShowPreviousGraph(); },
       [this] { return CanGoBack(); }},
      {&mnuRightClickGoto, [this] { GotoSample(); }, drawn},
      {&mnuRightClickPlotFrom, [this, set] { set(PlotRangeFrom); }, drawn},
      {&mnuRightClickPlotTo, [this, set] { set(PlotRangeTo); }, drawn},
      {&mnuRightClickPlotFromAnd, [this, setAndDraw] { setAndDraw(PlotRangeFrom); }, drawn},
      {&mnuRightClickPlotToAnd, [this, setAndDraw] { setAndDraw(PlotRangeTo); }, drawn},
      {&mnuRightClickNewDataTag, [this] { tags_.NewDataTag(); }, drawn},
      // clang-format on
  };
}

void frmDataLogViewer::BindCommands() {
  commands_.Bind(Joined({FileCommands(), logFiles_.Rows(), ViewCommands(), ScrollCommands(),
                         GraphMenuCommands(), OutputCommands(), scatter_.Rows(), power_.Rows(),
                         ecu_.Rows(), customising_.Rows(), zones_.Rows()}));

  chSampleGraph.RightClick = [this] {
    commands_.Update();
    host.PopupMenu(mnuRightClick);
  };
}

void frmDataLogViewer::SetUpZoomMenus() {
  std::vector<std::string> amounts;
  for (int amount : kZoomAmounts) amounts.push_back(std::to_string(amount));
  cboZoomAmount.SetList(std::move(amounts));
  for (auto* entries : {&mnuViewZoomInAmount, &mnuRightClickZoomInAmount, &mnuViewZoomOutAmount,
                        &mnuRightClickZoomOutAmount}) {
    const bool in = entries == &mnuViewZoomInAmount || entries == &mnuRightClickZoomInAmount;
    for (const auto& entry : *entries) {
      // A letter to press is one digit, and 20 begins as 2 does.
      entry->Caption = TextIf(entry->index < 10, "&") + std::to_string(entry->index) + " x";
      entry->Click = [this, in, amount = entry->index] {
        zoom_.SetAmount(amount);
        (in ? cmdZoomIn : cmdZoomOut).Press();
      };
    }
  }
}

bool frmDataLogViewer::Form_KeyDown(const KeyPress& key) {
  if (key == KeyPress{"F", true}) {
    SetFocus(&txtFindItem);
    return true;
  }
  const bool left = key.key == "Left", right = key.key == "Right";
  if (!left && !right) return false;
  const bool onGraph = ActiveControl() == &chSampleGraph || ActiveControl() == &lvwSampleDetails;
  const bool walks = key == KeyPress{key.key, true} && onGraph;
  const bool walksPlainly = key.Plain() && ActiveControl() == &chSampleGraph;
  if (walks || walksPlainly) {
    (left ? cmdDataPointLeft : cmdDataPointRight).Press();
    return true;
  }
  if (!graph_.Drawn() || key.shift || key.Plain()) return false;
  if (key.alt)
    left ? scrolling_.ScrollLeft() : scrolling_.ScrollRight();
  else
    left ? scrolling_.PageLeft() : scrolling_.PageRight();
  return true;
}

bool frmDataLogViewer::Form_KeyUp(const KeyPress& key) {
  const struct {
    KeyPress key;
    std::function<void()> run;
  } kKeys[] = {
      {{"Up", true}, [this] { highlight_.MoveBetweenSeries(1); }},
      {{"Down", true}, [this] { highlight_.MoveBetweenSeries(-1); }},
      {{"End", false, true},
       [this] {
         if (graph_.Drawn()) scrolling_.ScrollFinish();
       }},
      {{"Home", false, true},
       [this] {
         if (graph_.Drawn()) scrolling_.ScrollStart();
       }},
      {{"F", false, true}, [this] { cmdZoomFull.Press(); }},
      {{"I", false, true}, [this] { cmdZoomIn.Press(); }},
      {{"O", false, true}, [this] { cmdZoomOut.Press(); }},
  };
  for (const auto& row : kKeys)
    if (row.key == key) {
      TrapEvent(services_.errors, "frmDataLogViewer", "Form_KeyUp", row.run);
      return true;
    }
  return false;
}

}  // namespace tarnview
