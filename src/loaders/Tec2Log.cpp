#include "loaders/Tec2Log.h"

#include "loaders/TecLine.h"

namespace tarnview {
namespace {

using enum TecRule;

// SECONDS  RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW    PWOFF
//    12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52
//          1         2         3         4         5         6         7         8         9
// 12345678901234567890123456789012345678901234567890123456789012345678901234567890123456789012345678
// clang-format off
constexpr TecField kTec2[] = {
    {kSecs, 1, 8, Seconds},       {kRPM, 10, 5, Whole},         {kIAdv, 16, 2, Tenths},
    {kMAP, 19, 5, Tenths},        {kCTemp, 25, 3, Whole},       {kGAMA, 29, 4, Hundredths},
    {kATemp, 34, 3, Factored},
    {kTPS, 38, 5, Hundredths},  // four wide, but read with the blank behind it: kept on purpose
    {kCR, 43, 5, Correction},     {kAF, 49, 5, Factored},       {kEGOV, 55, 5, Hundredths},
    {kGPO1, 61, 6, Hundredths},   {kVolt, 68, 5, Tenths},       {kKnock, 74, 5, Rounded},
    {kInjPercent, 80, 5, Tenths}, {kInjW, 86, 5, Hundredths},   {kPWOFF, 92, 6, Hundredths},
};
// clang-format on
constexpr std::size_t kLineLength = 98, kSecondsPoint = 6, kSecondsBlank = 9;
constexpr SampleLogKind kTec2Log{.wrongFile = Message::NotATec2Log};

class Tec2Log : public SampleLog {
 public:
  Tec2Log(std::string_view bytes, const LoadContext& context) : lines_(bytes), context_(context) {}

  std::size_t ReadHeading() override {
    CheckTecHeading(lines_, kSecondsBlank);
    return kLineLength;
  }

  void ReadSamples(long lineStep) override {
    SampleLines lines(FromFirstPoint(lines_, kSecondsPoint), context_, lineStep);
    const auto fits = [](std::size_t length) { return length == kLineLength; };
    ReadTecLines(lines, context_, fits, [](TecBlock& block) { block.Store(kTec2); });
  }

 private:
  const TextLines lines_;
  const LoadContext& context_;
};

}  // namespace

LoadOutcome LoadTec2Log(std::string_view bytes, const LoadContext& context) {
  Tec2Log log(bytes, context);
  return LoadSampleLog(log, bytes, context, kTec2Log);
}

}  // namespace tarnview
