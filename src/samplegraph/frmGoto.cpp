#include "samplegraph/frmGoto.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "samplegraph/ClosestSample.h"

namespace tarnview {

frmGoto::frmGoto(Host& itsHost, const OpenLog& log, std::int32_t lngSample, bool blnShowPointWidth)
    : Form(itsHost, "frmGoto", "Goto Sample"), log_(log), sample_(lngSample) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "GotoSample";
  txtSampleNumber.Text = std::to_string(lngSample);
  ShowTime(LocateSample(log_, lngSample, lngSample));
  chkShowPointWidth.Value = blnShowPointWidth;
  txtSampleNumber.LostFocus = [this] { ValidateSampleNumber(); };
  txtSampleTime.LostFocus = [this] { ValidateSampleTime(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmGoto::ValidateSampleNumber() {
  const std::int32_t sample = std::clamp(StringToLong(txtSampleNumber.Text()),
                                         log_.glngFirstSampleTime, log_.glngLastSampleTime);
  txtSampleNumber.Text = std::to_string(sample);
  ShowTime(LocateSample(log_, sample, sample));
}

void frmGoto::ValidateSampleTime() {
  const clsLogDataItem& seconds = log_.gcolDataItems->Item(ItemOf(kSecs));
  const double first = seconds.GetRawData(log_.glngDataLog(kSecs, log_.glngFirstSample));
  const double last = seconds.GetRawData(log_.glngDataLog(kSecs, log_.glngLastSample));
  const double wanted = std::max(std::min(StringToDouble(txtSampleTime.Text()), last), first);
  const std::int32_t index = ClosestSampleNumberToTime(log_, seconds.SetRawData(wanted));
  txtSampleNumber.Text = std::to_string(log_.Sample(index));
  ShowTime(index);
}

void frmGoto::ShowTime(std::int32_t index) {
  const clsLogDataItem& seconds = log_.gcolDataItems->Item(ItemOf(kSecs));
  txtSampleTime.Text = NumberText(seconds.GetRawData(log_.glngDataLog(kSecs, index)));
}

void frmGoto::cmdOK_Click() {
  // Enter presses OK while the caret is still in a field.
  if (ActiveControl() == &txtSampleTime)
    ValidateSampleTime();
  else
    ValidateSampleNumber();
  sample_ = StringToLong(txtSampleNumber.Text());
  Accept();
}

}  // namespace tarnview
