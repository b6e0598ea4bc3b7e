#include "power/frmCarDefinitionDetails.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "power/CarFile.h"
#include "power/SavedRun.h"

namespace tarnview {
namespace {

/// "Input past end of file" of the run-time errors.
constexpr long kInputPastEnd = 62;

std::vector<std::string> Numbers(int from, int to, int step) {
  std::vector<std::string> texts;
  for (int number = from; number <= to; number += step) texts.push_back(std::to_string(number));
  return texts;
}

const char* LabelOf(CarUnit unit, bool imperial) {
  const CarUnitRow& row = CarUnitOf(unit);
  if (imperial) return row.imperialLabel;
  return row.metricLabel;
}

}  // namespace

frmCarDefinitionDetails::frmCarDefinitionDetails(Host& itsHost, const Surroundings& surroundings,
                                                 const clsCarDef& ColItem)
    : CarDefinitionControls(itsHost),
      around_(surroundings),
      car_(ColItem),
      exchange_(*this, around_, {".car", kCarFileFilter, true, Message::CarDefinitionNotLoaded}) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "CarDefinitionDetails";
  tabCarDefinition.SetTabs({{"Car Definition", &fraCarDefinition},
                            {"Gear Ratios", &fraGearRatios},
                            {"Defaults", &fraDefaults}});
  txtTotalWeight.ReadOnly = true;
  FillLists();
  BindControls();
  BindOptions();
  ShowFields(FieldsOf(car_));
  before_ = FieldsNow();
}

void frmCarDefinitionDetails::FillLists() {
  cboTyreWidth.SetList(Numbers(125, 355, 10));
  cboTyreProfile.SetList(Numbers(25, 85, 5));
  cboWheelDiameter.SetList(Numbers(10, 22, 1));
  std::vector<std::string> gears;
  for (int gear = 0; gear < kGears; ++gear) {
    gears.emplace_back(GearName(gear));
    lblGears(gear).Caption = std::string(GearName(gear));
  }
  lblGears(kGears).Caption = std::string("Diff");
  cboDefGear.SetList(std::move(gears));
  optUnits(0).Caption = std::string("&Imperial");
  optUnits(1).Caption = std::string("&Metric");
}

void frmCarDefinitionDetails::BindControls() {
  txtCD.LostFocus = [this] { txtCD.Text = ValidateCD(txtCD.Text()); };
  txtFrontalArea.LostFocus = [this] {
    txtFrontalArea.Text = ValidateFrontalArea(txtFrontalArea.Text());
  };
  txtCarWeight.Change = [this] { ShowTotalWeight(); };
  txtCarContentsWeight.Change = [this] { ShowTotalWeight(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdLoad.Click = [this] {
    exchange_.Load(
        [this](std::string_view bytes, const std::string& path) { LoadFile(bytes, path); });
  };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmCarDefinitionDetails::BindOptions() {
  for (OptionButton* option :
       {&optTyreSize, &optRevsPerMile, &optRadius, &optAeroSetPoint, &optAeroCD})
    option->Click = [this] { EnableFields(); };
  for (const auto& option : optUnits) option->Click = [this] { UnitsChosen(); };
}

std::vector<frmCarDefinitionDetails::FieldBox> frmCarDefinitionDetails::Boxes() {
  using F = CarFields;
  return {{&txtName, &F::name},
          {&txtDesc, &F::description},
          {&txtGearRatios(kGears), &F::diffRatio},
          {&txtWheelRadius, &F::radius},
          {&txtTyreRPM, &F::tyreRpm},
          {&txtSetPointPower, &F::setPointPower},
          {&txtSetPointSpeed, &F::setPointSpeed},
          {&txtCD, &F::cd},
          {&txtFrontalArea, &F::frontalArea},
          {&txtCarWeight, &F::carWeight},
          {&txtCarContentsWeight, &F::contentsWeight},
          {&txtSmoothFactor, &F::smoothing},
          {&txtDynoFactor, &F::dyno}};
}

/// A size that the list lacks joins it.
void frmCarDefinitionDetails::ChooseOrAdd(ComboBox& list, const std::string& text) {
  if (list.Choose(text)) return;
  std::vector<std::string> entries = list.Entries();
  entries.push_back(text);
  list.SetList(std::move(entries));
  list.Choose(text);
}

void frmCarDefinitionDetails::ShowFields(const CarFields& fields) {
  showing_ = true;
  optUnits(fields.imperial ? 0 : 1).Value = true;
  for (const FieldBox& row : Boxes()) row.box->Text = fields.*row.text;
  for (int gear = 0; gear < kGears; ++gear) {
    txtGearRatios(gear).Text = fields.ratios[static_cast<std::size_t>(gear)];
    txtGearLosses(gear).Text = fields.losses[static_cast<std::size_t>(gear)];
  }
  ChooseOrAdd(cboTyreWidth, fields.tyreWidth);
  ChooseOrAdd(cboTyreProfile, fields.tyreProfile);
  ChooseOrAdd(cboWheelDiameter, fields.wheelDiameter);
  OptionButton* const methods[] = {&optTyreSize, &optRevsPerMile, &optRadius};
  const int method = std::clamp<int>(fields.tyreSizeMethod, kTyreSize, kTyreRadius);
  methods[method - kTyreSize]->Value = true;
  (fields.useCd ? optAeroCD : optAeroSetPoint).Value = true;
  cboDefGear.SetListIndex(fields.gear);
  showing_ = false;
  ShowLabels();
  EnableFields();
  ShowTotalWeight();
}

CarFields frmCarDefinitionDetails::FieldsNow() {
  CarFields fields;
  fields.imperial = optUnits(0).Value;
  for (const FieldBox& row : Boxes()) fields.*row.text = row.box->Text();
  for (int gear = 0; gear < kGears; ++gear) {
    fields.ratios[static_cast<std::size_t>(gear)] = txtGearRatios(gear).Text();
    fields.losses[static_cast<std::size_t>(gear)] = txtGearLosses(gear).Text();
  }
  fields.tyreWidth = cboTyreWidth.Text();
  fields.tyreProfile = cboTyreProfile.Text();
  fields.wheelDiameter = cboWheelDiameter.Text();
  fields.tyreSizeMethod = kTyreRadius;
  if (optTyreSize.Value) fields.tyreSizeMethod = kTyreSize;
  if (optRevsPerMile.Value) fields.tyreSizeMethod = kTyreRevolutions;
  fields.useCd = optAeroCD.Value;
  fields.gear = std::max(cboDefGear.ListIndex(), 0);
  return fields;
}

void frmCarDefinitionDetails::ShowLabels() {
  shownImperial_ = optUnits(0).Value;
  const struct {
    Property<std::string>& caption;
    CarUnit unit;
  } kRows[] = {
      {optRadius.Caption, CarUnit::Radius},
      {lblSetPointPower.Caption, CarUnit::SetPointPower},
      {lblSetPointSpeed.Caption, CarUnit::SetPointSpeed},
      {lblCarWeight.Caption, CarUnit::CarWeight},
      {lblCarContentsWeight.Caption, CarUnit::ContentsWeight},
      {lblTotalWeight.Caption, CarUnit::TotalWeight},
      {optRevsPerMile.Caption, CarUnit::TyreRpm},
      {lblFrontalArea.Caption, CarUnit::FrontalArea},
  };
  for (const auto& row : kRows) row.caption = std::string(LabelOf(row.unit, shownImperial_));
}

void frmCarDefinitionDetails::UnitsChosen() {
  if (showing_ || shownImperial_ == optUnits(0).Value) return;
  ShowLabels();
  const bool toMetric = !shownImperial_;
  Question question = Question::ConvertToImperial;
  if (toMetric) question = Question::ConvertToMetric;
  if (!around_.messages.AskQuestion(question)) return;
  CarFields fields = FieldsNow();
  ConvertFields(fields, toMetric);
  ShowFields(fields);
}

void frmCarDefinitionDetails::EnableFields() {
  for (ComboBox* list : {&cboTyreWidth, &cboTyreProfile, &cboWheelDiameter})
    list->Enabled = optTyreSize.Value();
  txtTyreRPM.Enabled = optRevsPerMile.Value();
  txtWheelRadius.Enabled = optRadius.Value();
  for (TextBox* field : {&txtSetPointPower, &txtSetPointSpeed}) field->Enabled = !optAeroCD.Value();
  for (TextBox* field : {&txtCD, &txtFrontalArea}) field->Enabled = optAeroCD.Value();
}

void frmCarDefinitionDetails::ShowTotalWeight() {
  const std::int64_t total =
      std::int64_t{StringToLong(txtCarWeight.Text())} + StringToLong(txtCarContentsWeight.Text());
  txtTotalWeight.Text = std::to_string(total);
}

bool frmCarDefinitionDetails::Changed() {
  return CarFileText(FieldsNow(), {}) != CarFileText(before_, {});
}

void frmCarDefinitionDetails::cmdOK_Click() {
  // Enter leaves the caret in its field, whose number may be out of bounds.
  SetFocus(nullptr);
  car_ = CarOf(FieldsNow());
  Accept();
}

/// A changed form that is left without OK: the user may keep the changes, and the window closes as
/// with OK.
bool frmCarDefinitionDetails::Form_QueryUnload() {
  if (Accepted() || !Changed() || !around_.messages.AskQuestion(Question::KeepCarChanges))
    return true;
  car_ = CarOf(FieldsNow());
  MarkAccepted();
  return true;
}

void frmCarDefinitionDetails::cmdSave_Click() {
  exchange_.Save(txtName.Text(),
                 [this](const Moment& now) { return CarFileText(FieldsNow(), now); });
}

void frmCarDefinitionDetails::LoadFile(std::string_view bytes, const std::string& path) {
  CarFields fields = FieldsNow();
  if (!ReadCarFile(bytes, fields))
    throw RuntimeError(kInputPastEnd, "No car definition in " + path);
  ShowFields(fields);
}

}  // namespace tarnview
