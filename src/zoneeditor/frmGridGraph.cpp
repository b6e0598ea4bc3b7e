#include "zoneeditor/frmGridGraph.h"

#include <algorithm>

#include "base/Numbers.h"
#include "ui/SurfaceEye.h"

namespace tarnview {
namespace {

constexpr int kGreatestAngle = 359;

int AngleOf(const TextBox& field) {
  return std::clamp(StringToLong(field.Text()), 0, kGreatestAngle);
}

void StepAngle(TextBox& field, int by) {
  field.Text = std::to_string(std::clamp(AngleOf(field) + by, 0, kGreatestAngle));
}

}  // namespace

frmGridGraph::frmGridGraph(Host& itsHost, const Surroundings& surroundings,
                           GridGraphRequest request)
    : Form(itsHost, "frmGridGraph", "Tarnview 3D Graph - " + request.caption),
      around_(surroundings),
      request_(std::move(request)),
      table_(request_.table),
      output_(itsHost, surroundings.messages, surroundings.errors),
      commands_(surroundings.errors, "frmGridGraph") {
  HelpTopic = "ThreeDGraph";
  std::vector<std::string> rows, columns;
  for (int row = kGridRows; row >= 1; --row)
    rows.push_back(GraphRowLabel(request_.normallyAspirated, row));
  for (int column = 0; column < kGridColumns; ++column)
    columns.push_back(ZoneColumnHeading(column));
  cboRow.SetList(rows);
  cboColumn.SetList(columns);
  txtRotation.Text = std::to_string(request_.rotation);
  txtElevation.Text = std::to_string(request_.elevation);
  SetToolTips();
  ShowTable();
  ShowValue();
  BindCells();
  BindAngles();
  BindButtons();
}

void frmGridGraph::SetToolTips() {
  cboRow.ToolTip = "Fuel/Ignition grid row";
  cboColumn.ToolTip = "Fuel/Ignition grid column";
  txtValue.ToolTip = "Fuel/Ignition zone value";
  txtRotation.ToolTip = "Degrees of rotation of the graph";
  txtElevation.ToolTip = "Degrees of elevation of the graph";
  cmdReset.ToolTip = "Reset the graph orientation to its default settings";
}

void frmGridGraph::BindCells() {
  chGridGraph.PointSelected = [this](int row, int column) {
    cboRow.SetListIndex(kGridRows - row);
    cboColumn.SetListIndex(column - 1);
  };
  cboRow.Click = cboColumn.Click = [this] {
    ShowValue();
    SelectOnChart();
  };
  txtValue.LostFocus = [this] { TakeValue(); };
  txtValue.KeyDown = [this](const KeyPress& key, bool& eaten) {
    if (key.key != "Enter" || !key.Plain() || !MayEdit()) return;
    TakeValue();
    eaten = true;
  };
  updValue.UpClick = [this] { StepValue(1); };
  updValue.DownClick = [this] { StepValue(-1); };
}

void frmGridGraph::BindAngles() {
  for (TextBox* field : {&txtRotation, &txtElevation}) {
    field->Change = [this] { ShowView(); };
    field->LostFocus = [field] { field->Text = std::to_string(AngleOf(*field)); };
  }
  updRotation.UpClick = [this] { StepAngle(txtRotation, 1); };
  updRotation.DownClick = [this] { StepAngle(txtRotation, -1); };
  updElevation.UpClick = [this] { StepAngle(txtElevation, 1); };
  updElevation.DownClick = [this] { StepAngle(txtElevation, -1); };
  chGridGraph.Turn = [this](double right, double up) {
    const SurfaceView turned = Turned(chGridGraph.Data().AsSurface()->view, right, up);
    txtRotation.Text = std::to_string(turned.rotation);
    txtElevation.Text = std::to_string(turned.elevation);
  };
  chGridGraph.Wheel = [this](double, double notches) {
    zoom_ = Zoomed({0, 0, zoom_}, notches).zoom;
    ShowView();
  };
  chGridGraph.DblClick = [this] { Reset(); };
}

void frmGridGraph::BindButtons() {
  if (request_.readOnly)
    DefaultButton = &cmdCancel;
  else
    DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  if (request_.readOnly) {
    cmdOK.Visible = false;
    cmdCancel.Caption = "&Close";
  }
  chGridGraph.RightClick = [this] { host.PopupMenu(mnuRightClick); };
  const PrintDetails details{request_.kind, {{"Source", request_.source}}};
  commands_.Bind({
      // clang-format off
      {&cmdReset, [this] { Reset(); }, {}},
      {&cmdOK, [this] { cmdOK_Click(); }, {}},
      {&cmdCancel, [this] { Unload(); }, {}},
      {&mnuEditCopy, [this] { output_.Copy(chGridGraph); }, {}},
      {&mnuRightClickPrint, [=, this] { output_.Print(chGridGraph, details); }, {}},
      {&mnuRightClickSavePicture,
       [this] { output_.SavePictureAs(chGridGraph, request_.source); },
       {}},
      // clang-format on
  });
}

/// Enter presses OK while the caret is still in a field.
void frmGridGraph::cmdOK_Click() {
  SetFocus(nullptr);
  Accept();
}

int frmGridGraph::Rotation() const { return AngleOf(txtRotation); }
int frmGridGraph::Elevation() const { return AngleOf(txtElevation); }
int frmGridGraph::Row() const {
  if (cboRow.ListIndex() < 0) return 0;
  return kGridRows - cboRow.ListIndex();
}
int frmGridGraph::Column() const { return cboColumn.ListIndex() + 1; }

bool frmGridGraph::MayEdit() const {
  return !request_.readOnly && Row() > 0 && Column() > 0 && !table_.IsLocked(Row(), Column());
}

void frmGridGraph::ShowTable() {
  ChartDescription chart;
  Surface surface = SurfaceOf(request_, table_);
  surface.view = {Rotation(), Elevation(), zoom_};
  chart.kind = std::move(surface);
  chart.colours.systemBackdrop = true;
  chGridGraph.SetData(std::move(chart));
  SelectOnChart();
}

void frmGridGraph::ShowView() { chGridGraph.SetView({Rotation(), Elevation(), zoom_}); }

void frmGridGraph::SelectOnChart() {
  const bool selected =
      chGridGraph.SelectedSeries() == Row() && chGridGraph.SelectedPoint() == Column();
  if (Row() > 0 && Column() > 0 && !selected) chGridGraph.SelectPoint(Row(), Column());
}

void frmGridGraph::ShowValue() {
  txtValue.ReadOnly = !MayEdit();
  updValue.Enabled = MayEdit();
  if (Row() > 0 && Column() > 0) txtValue.Text = table_.Text(Row(), Column());
}

void frmGridGraph::TakeValue() {
  if (!MayEdit()) return;
  const int value =
      std::clamp(StringToLong(txtValue.Text()), request_.limits.low, request_.limits.high);
  txtValue.Text = std::to_string(value);
  std::string& cell = table_.Text(Row(), Column());
  if (cell == txtValue.Text()) return;
  cell = txtValue.Text();
  ShowTable();
}

void frmGridGraph::StepValue(int by) {
  const int from =
      std::clamp(StringToLong(txtValue.Text()), request_.limits.low, request_.limits.high);
  txtValue.Text = std::to_string(from + by);
  TakeValue();
}

/// Cells keep what they hold.
void frmGridGraph::Reset() {
  const StartingAngles angles = AnglesOf(around_.angles, request_.grid);
  zoom_ = 1;
  txtRotation.Text = std::to_string(angles.rotation);
  txtElevation.Text = std::to_string(angles.elevation);
  ShowView();
}

}  // namespace tarnview
