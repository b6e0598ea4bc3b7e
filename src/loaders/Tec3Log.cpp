#include "loaders/Tec3Log.h"

#include "loaders/TecLine.h"

namespace tarnview {
namespace {

using enum TecRule;

// SECONDS   RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW PWOFF
//     12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15 0.52
//          1         2         3         4         5         6         7         8         9
// 1234567890123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890
constexpr TecField kTec3[] = {
    {kRPM, 11, 5, Whole},          {kIAdv, 17, 2, Tenths},       {kMAP, 20, 5, Tenths},
    {kCTemp, 26, 3, Whole},        {kGAMA, 30, 4, Hundredths},   {kATemp, 35, 3, Factored},
    {kTPS, 39, 4, Hundredths},     {kCR, 44, 5, Correction},     {kAF, 50, 5, Factored},
    {kEGOV, 56, 5, Hundredths},    {kGPO1, 62, 6, Hundredths},   {kVolt, 69, 5, Tenths},
    {kKnock, 75, 5, Rounded},      {kInjPercent, 81, 5, Tenths}, {kInjW, 87, 6, Hundredths},
    {kPWOFF, 94, 6, Hundredths},   {kTDUTY, 101, 6, Hundredths}, {kTPWON, 108, 5, Hundredths},
    {kTPWOFF, 114, 6, Hundredths}, {kAD1, 121, 4, Hundredths},   {kAD2, 126, 4, Hundredths},
    {kAD3, 131, 4, Hundredths},    {kAD4, 136, 4, Hundredths},
};

// TDUTY  TPWON TPWOFF AD1  AD2  AD3  AD4  GPO2   GFG SIA KNR IAC
//   0.00  0.00   0.00 0.51 1.22 2.48 4.97    1.5   7 12   3   33.0    a line of 164
//   0.00  0.00   0.00 0.51 1.22 2.48 4.97   2.5   8 -1   0            a line of 156: from "GPO2" on
//   a place to the left
//          1         2         3         4         5         6
// 1234567890123456789012345678901234567890123456789012345678901234   + 100
constexpr TecField kRestOf164[] = {
    {kGPO2, 141, 6, Hundredths},   {kGFG, 148, 3, Whole},   {kSIA, 152, 2, WholeFactored},
    {kKNR, 156, 2, WholeFactored}, {kIAC, 160, 5, Rounded},
};
constexpr TecField kRestOf156[] = {
    {kGPO2, 140, 6, Hundredths},
    {kGFG, 147, 3, Whole},
    {kSIA, 151, 2, WholeFactored},
    {kKNR, 155, 2, WholeFactored},
};
constexpr std::size_t kLong = 164, kShort = 156, kSecondsLength = 9, kSecondsPoint = 7,
                      kSecondsBlank = 10;
constexpr SampleLogKind kTec3Log{.wrongFile = Message::NotATec3Log};

class Tec3Log : public SampleLog {
 public:
  Tec3Log(std::string_view bytes, const LoadContext& context) : lines_(bytes), context_(context) {}

  std::size_t ReadHeading() override {
    CheckTecHeading(lines_, kSecondsBlank);
    return kShort;
  }

  void ReadSamples(long lineStep) override {
    SampleLines lines(FromFirstPoint(lines_, kSecondsPoint), context_, lineStep);
    const auto fits = [](std::size_t length) { return length == kShort || length == kLong; };
    ReadTecLines(lines, context_, fits, [this](TecBlock& block) {
      StoreSeconds(block);
      block.Store(kTec3);
      if (block.LineLength() == kLong)
        block.Store(kRestOf164);
      else
        block.Store(kRestOf156);
    });
  }

 private:
  void StoreSeconds(const TecBlock& block) const {
    SampleStore& store = context_.log.glngDataLog;
    int row = store.Rows() - static_cast<int>(block.Lines());
    for (std::size_t line = 0; line < block.Lines(); ++line, ++row)
      store.Set(kSecs, row, Seconds({block.Line(line), kSecondsLength}, row));
  }

  /// A clock that stands still or jumps back goes on by one ten-thousandth; one that is lost (0) by
  /// the line frequency.
  std::int32_t Seconds(std::string_view text, int row) const {
    const SampleStore& store = context_.log.glngDataLog;
    const std::int32_t seconds = RoundToLong(ValDouble(text) * kStoredPerSecond);
    if (row == 0 || seconds > store(kSecs, row - 1)) return seconds;
    if (seconds != 0) return RoundToLong(store(kSecs, row - 1) + 1.0);
    return RoundToLong(RoundPlaces(row / context_.settings.gdblDataLogLineFrequency, 4) *
                       kStoredPerSecond);
  }

  const TextLines lines_;
  const LoadContext& context_;
};

}  // namespace

LoadOutcome LoadTec3Log(std::string_view bytes, const LoadContext& context) {
  Tec3Log log(bytes, context);
  return LoadSampleLog(log, bytes, context, kTec3Log);
}

}  // namespace tarnview
