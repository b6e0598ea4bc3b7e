#include "model/BeyondSettings.h"

#include "model/BeyondKeys.h"

namespace tarnview {
namespace {

using B = BeyondSettings;

const IniKey<B> kKeys[] = {
    {"Draw After Opening",
     IniFlag<B>{&B::drawAfterOpening, IniFlagForm::OffUnlessY},
     {"frmOptions/General", "chkDrawAfterOpening"}},
    {"Main Window Dividers", IniText<B>{&B::mainDividers}},
    {"Scatter Graph Dividers", IniText<B>{&B::scatterDividers}},
    {"Lines A Second",
     IniNumber<B>{&B::linesASecond, kLeastLinesASecond, kMostLinesASecond},
     {"frmLineFrequency", "txtLineFrequency"}},
    {"Own Item Display", IniText<B>{&B::ownItemDisplay}},
};

}  // namespace

std::span<const IniKey<BeyondSettings>> BeyondKeys() { return kKeys; }

void ReadBeyondSettings(const IniTable& table, BeyondSettings& settings) {
  ReadIniKeys<B>(kKeys, table, {kBeyondSection}, settings);
}

void WriteBeyondSettings(const BeyondSettings& settings, IniWriter& file) {
  WriteChangedIniKeys<B>(kKeys, {kBeyondSection}, settings, file);
}

}  // namespace tarnview
