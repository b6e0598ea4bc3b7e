#include "samplegraph/ZoneInfluencePanel.h"

#include "base/Numbers.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "samplegraph/ZoneInfluence.h"

namespace tarnview {
namespace {

/// Twips: the mark is a dot within a ring, and stays within the picture.
constexpr int kDot = 30;
constexpr int kRing = 60;

}  // namespace

ZoneInfluencePanel::ZoneInfluencePanel(const Controls& controls, const Selection& selection,
                                       const OpenLog& log)
    : controls_(controls), selection_(selection), log_(log) {
  controls_.picZoneInfl.Resize = [this] { RefreshZoneInfluence(); };
}

void ZoneInfluencePanel::DisplayZoneInfluence() {
  controls_.fraZoneInfl.Visible = gblnDisplayZoneInfluence;
  controls_.mnuViewZoneInfl.Checked = gblnDisplayZoneInfluence;
  RefreshZoneInfluence();
}

void ZoneInfluencePanel::ClearZoneInfluence() {
  for (const auto& label : controls_.lblZoneInfl) label->Caption = std::string();
  controls_.picZoneInfl.Cls();
}

void ZoneInfluencePanel::RefreshZoneInfluence() {
  if (!controls_.cmdDrawGraph.Enabled || !log_.gblnSamplesLoaded) return;
  const std::int32_t sample = selection_.lngHighlightSample();
  // Before a first graph nothing is highlighted.
  if (sample > 0) ShowSample(LocateSample(log_, sample - log_.glngFirstSampleTime, sample));
}

void ZoneInfluencePanel::ShowSample(std::int32_t index) {
  if (gblnDisplayZoneInfluence)
    PopulateZoneInfl(log_.glngDataLog(kRPM, index), log_.glngDataLog(kMAP, index));
}

void ZoneInfluencePanel::PopulateZoneInfl(std::int32_t lngRPM, std::int32_t lngMAPRaw) {
  const double kPa = log_.gcolDataItems->Item(ItemOf(kMAP)).GetRawData(lngMAPRaw);
  const ZoneInfluence found = FindZoneInfluence(lngRPM, kPa, log_.zones.gblnZoneLayout6);
  controls_.lblZoneInfl(0).Caption = found.lowerLow;
  controls_.lblZoneInfl(1).Caption = found.lowerHigh;
  controls_.lblZoneInfl(2).Caption = found.upperLow;
  controls_.lblZoneInfl(3).Caption = found.upperHigh;
  const int width = controls_.picZoneInfl.Width(), height = controls_.picZoneInfl.Height();
  const int x = RoundToLong(found.across * (width - 2 * kRing) + kRing);
  const int y = RoundToLong(found.up * (height - 2 * kDot) + kDot);
  controls_.picZoneInfl.Draw(
      {{{0, y, width, y}, {x, 0, x, height}}, {{x, y, kDot, true}, {x, y, kRing, false}}});
}

}  // namespace tarnview
