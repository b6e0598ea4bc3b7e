#include "model/OpenLog.h"

namespace tarnview {

void OpenLog::Clear(const clsLogDataItems& items, int expectedRows) {
  gcolDataItems = &items;
  glngDataLog.Prepare(items.Count(), expectedRows);
  glngFirstSample = 0;
  glngLastSample = 0;
  glngFirstSampleTime = 0;
  glngLastSampleTime = 0;
  glngFirstPlotSample = -1;
  glngLowestAirTemp = kNoAirTemp;
  gblnSamplesLoaded = false;
  gblnZonesLoaded = false;
  gblnChangesLoaded = false;
  blnTooLong = false;
  zones = {};
  gcolLogTags.RemoveAll();
}

std::string OpenLog::FormatDataItem(int seq, int index) const {
  const clsLogDataItem& item = gcolDataItems->Item(seq);
  return item.GetFormattedData(glngDataLog(item.intSeq - 1, index));
}

}  // namespace tarnview
