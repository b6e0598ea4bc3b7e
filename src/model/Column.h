#pragma once

namespace tarnview {

/// Columns of a sample in the order of the catalogue; item number (intSeq) is column + 1.
enum Column : int {
  kSample,
  kCASErr,
  kRPM,
  kDwell,
  kMAP,
  kLambda,
  kO2,
  kO2A,
  kWGCM,
  kWGPercent,  // item 10
  kEGR,
  kFuelP,
  kInjW,
  kInjPercent,
  kThrottle,
  kIAC,
  kTPS,
  kNeutral,
  kComp,
  kKnock,  // item 20
  kIAdv,
  kVolt,
  kCTemp,
  kSpeed,
  kEngFan,
  kCndFan,
  kAC,
  kPRC,
  kChPurge,
  kKnockC,  // item 30
  kATemp,
  kAuxNS,
  kKnockT,
  kATR,
  kL3,
  kAF,
  kBoost,
  kVacuum,
  kAuxNF,
  kAuxCS,  // item 40
  kAuxCF,
  kKnockE,
  kMAPLmt,
  kRevLmt,
  kPower,
  kTorque,
  kPWOFF,
  kGAMA,
  kCR,
  kEGOV,  // item 50
  kGPO1,
  kTDUTY,
  kTPWON,
  kTPWOFF,
  kAD1,
  kAD2,
  kAD3,
  kAD4,
  kGPO2,
  kGFG,  // item 60
  kSIA,
  kKNR,
  kSecs,
  kZone,
  kIdleSp,
  kFuelZV,
  kIgnZV,
  kTumble,
  kL4,
  kL3Idle,  // item 70
  kMAF,
  kMAFM,
  kIAdvM,
  kFuelPercentM,
  kBCL,
  kLS,
  kMLP,
  kMAPD,
  kMAFD,
  kTPSD,  // item 80
  kMAFHz,
  kMAFMHz,
  kAFTgt,
  kColumnCount
};
static_assert(kColumnCount == 83 && kSecs == 62 && kKnock == 19);

/// The item number (intSeq) of a column.
constexpr int ItemOf(Column column) { return static_cast<int>(column) + 1; }

}  // namespace tarnview
