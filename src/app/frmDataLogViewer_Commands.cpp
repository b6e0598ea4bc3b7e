// The main window's commands: one table of what each does and when it may run, and the keys.

#include "app/frmAbout.h"
#include "app/frmDataLogViewer.h"

namespace tarnview {
namespace {

/// Nothing runs it yet.
const std::function<void()> kNotYet;

}  // namespace

std::vector<Command> frmDataLogViewer::FileCommands() {
  const auto loaded = [this] { return log_.gblnSamplesLoaded; };
  return {
      {&mnuFileOpen, "mnuFileOpen_Click", [this] { mnuFileOpen_Click(); }, {}},
      {&mnuFileSave, "mnuFileSave_Click", kNotYet, {}},
      {&mnuFileSaveAs, "mnuFileSaveAs_Click", kNotYet, {}},
      {&mnuFileNewLogDescription, "mnuFileNewLogDescription_Click", [this] { mnuFileNewLogDescription_Click(); }, {}},
      {&mnuFileExport, "mnuFileExport_Click", [this] { mnuFileExport_Click(); }, loaded},
      {&mnuFileExit, "mnuFileExit_Click", [this] { Unload(); }, {}},
      {&mnuEditUpdatePreset, "mnuEditUpdatePreset_Click", [this] { presets_.UpdatePreset(); },
       [this] { return log_.gblnSamplesLoaded && presets_.HasRows(); }},
      {&mnuEditNewPreset, "mnuEditNewPreset_Click", [this] { mnuEditNewPreset_Click(); }, loaded},
      {&mnuModulesZoneData, "mnuModulesZoneData_Click", kNotYet, {}},
      {&mnuToolsDataLogView, "mnuToolsDataLogView_Click", kNotYet, loaded},
      {&mnuCustomiseBenchmarks, "mnuCustomiseBenchmarks_Click", kNotYet, {}},
      {&mnuHelpHelp, "mnuHelpHelp_Click", [this] { host.ShowHelp(""); }, {}},
      {&mnuHelpAbout,
       "mnuHelpAbout_Click",
       [this] {
         const clsDataLog& definition = globals_.gclsDataLogDefinition;
         frmAbout(host, {definition.strName, definition.strVersion, definition.strComments}, [this] {
           StartSysInfo();
         }).ShowModal();
       },
       {}},
  };
}

std::vector<Command> frmDataLogViewer::ViewCommands() {
  const auto loaded = [this] { return log_.gblnSamplesLoaded; };
  const auto drawn = [this] { return drawn_; };
  const auto narrower = [this] { return drawn_ && range_.Span() >= 10; };
  const auto wider = [this] { return drawn_ && !range_.IsWholeLog(); };
  const auto previous = [this] { return drawn_ && !plot_.strPlotFromHistory[1].empty(); };
  return {
      {&cmdDrawGraph, "cmdDrawGraph_Click", [this] { DrawGraph(); }, loaded},
      {&cmdZoomIn, "cmdZoomIn_Click", [this] { zoom_.cmdZoomIn_Click(); }, narrower},
      {&cmdZoomOut, "cmdZoomOut_Click", [this] { zoom_.cmdZoomOut_Click(); }, wider},
      {&cmdZoomFull, "cmdZoomFull_Click", [this] { zoom_.cmdZoomFull_Click(); }, wider},
      {&cmdDataPointLeft, "cmdDataPointLeft_Click", [this] { highlight_.cmdDataPointLeft_Click(); }, drawn},
      {&cmdDataPointRight, "cmdDataPointRight_Click", [this] { highlight_.cmdDataPointRight_Click(); }, drawn},
      {&mnuViewZoomIn, "mnuViewZoomIn_Click", [this] { zoom_.cmdZoomIn_Click(); }, narrower},
      {&mnuViewZoomOut, "mnuViewZoomOut_Click", [this] { zoom_.cmdZoomOut_Click(); }, wider},
      {&mnuViewZoomFull, "mnuViewZoomFull_Click", [this] { zoom_.cmdZoomFull_Click(); }, wider},
      {&mnuViewPrevious, "mnuViewPrevious_Click", [this] { zoom_.ShowPreviousGraph(); }, previous},
      {&mnuViewGoto, "mnuViewGoto_Click", [this] { GotoSample(); }, drawn},
      {&mnuViewNewDataTag, "mnuViewNewDataTag_Click", [this] { tags_.NewDataTag(); }, drawn},
      {&mnuViewTags, "mnuViewTags_Click", [this] { ShowDataTags(); }, [this] { return CanShowDataTags(); }},
      {&mnuViewZoneInfl, "mnuViewZoneInfl_Click", [this] { mnuViewZoneInfl_Click(); },
       [this] { return IsLinkLog() && (log_.gblnSamplesLoaded || log_.gblnZonesLoaded); }},
  };
}

std::vector<Command> frmDataLogViewer::GraphMenuCommands() {
  const auto drawn = [this] { return drawn_; };
  const auto same = [](const Control& other) { return [&other] { return other.Enabled(); }; };
  const auto set = [this](TextBox& box) { box.Text = std::to_string(highlight_.SelectedSample()); };
  const auto setAndDraw = [this, set](TextBox& box) {
    plot_.lngHighlightSample = 0;
    set(box);
    DrawGraph();
  };
  return {
      {&mnuRightClickDrawGraph, "mnuRightClickDrawGraph_Click", [this] { DrawGraph(); }, same(cmdDrawGraph)},
      {&mnuRightClickZoomIn, "mnuRightClickZoomIn_Click", [this] { zoom_.cmdZoomIn_Click(); }, same(cmdZoomIn)},
      {&mnuRightClickZoomOut, "mnuRightClickZoomOut_Click", [this] { zoom_.cmdZoomOut_Click(); }, same(cmdZoomOut)},
      {&mnuRightClickZoomOutFull, "mnuRightClickZoomOutFull_Click", [this] { zoom_.cmdZoomFull_Click(); },
       same(cmdZoomFull)},
      {&mnuRightClickPrevGraph, "mnuRightClickPrevGraph_Click", [this] { zoom_.ShowPreviousGraph(); },
       same(mnuViewPrevious)},
      {&mnuRightClickGoto, "mnuRightClickGoto_Click", [this] { GotoSample(); }, drawn},
      {&mnuRightClickPlotFrom, "mnuRightClickPlotFrom_Click", [this, set] { set(PlotRangeFrom); }, drawn},
      {&mnuRightClickPlotTo, "mnuRightClickPlotTo_Click", [this, set] { set(PlotRangeTo); }, drawn},
      {&mnuRightClickPlotFromAnd, "mnuRightClickPlotFromAnd_Click", [this, setAndDraw] { setAndDraw(PlotRangeFrom); },
       drawn},
      {&mnuRightClickPlotToAnd, "mnuRightClickPlotToAnd_Click", [this, setAndDraw] { setAndDraw(PlotRangeTo); }, drawn},
      {&mnuRightClickNewDataTag, "mnuRightClickNewDataTag_Click", [this] { tags_.NewDataTag(); }, drawn},
  };
}

void frmDataLogViewer::BindCommands() {
  std::vector<Command> rows = FileCommands();
  for (auto&& part : {ViewCommands(), GraphMenuCommands(), OutputCommands(), scatter_.Rows(), power_.Rows(),
                      ecu_.Rows(), customising_.Rows()})
    rows.insert(rows.end(), part.begin(), part.end());
  for (const auto& item : mnuRecentlyUsed)
    rows.push_back(
        {item.get(), "mnuRecentlyUsed_Click", [this, index = item->index] { OpenRecentlyUsedFile(index); }, {}});
  commands_.Bind(std::move(rows));

  // Enabled by the scroll bar's position, which Scrolling knows.
  mnuViewScrollLeft.Click = [this] { scrolling_.ScrollLeft(); };
  mnuViewScrollRight.Click = [this] { scrolling_.ScrollRight(); };
  mnuViewPageLeft.Click = [this] { scrolling_.PageLeft(); };
  mnuViewPageRight.Click = [this] { scrolling_.PageRight(); };
  mnuViewStart.Click = [this] { scrolling_.ScrollStart(); };
  mnuViewFinish.Click = [this] { scrolling_.ScrollFinish(); };
  chSampleGraph.RightClick = [this] {
    commands_.Update();
    host.PopupMenu(mnuRightClick);
  };
}

void frmDataLogViewer::SetUpZoomMenus() {
  std::vector<std::string> amounts;
  for (int amount : kZoomAmounts) amounts.push_back(std::to_string(amount));
  cboZoomAmount.SetList(std::move(amounts));
  for (auto* entries :
       {&mnuViewZoomInAmount, &mnuRightClickZoomInAmount, &mnuViewZoomOutAmount, &mnuRightClickZoomOutAmount}) {
    const bool in = entries == &mnuViewZoomInAmount || entries == &mnuRightClickZoomInAmount;
    for (const auto& entry : *entries) {
      entry->Caption = "&" + std::to_string(entry->index) + " x";
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
  if (!drawn_ || key.shift || key.Plain()) return false;
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
         if (drawn_) scrolling_.ScrollFinish();
       }},
      {{"Home", false, true},
       [this] {
         if (drawn_) scrolling_.ScrollStart();
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
