#include "model/Catalogue.h"

#include <array>
#include <span>
#include <string_view>

#include "model/Column.h"

namespace tarnview {
namespace {

using Texts = std::span<const char* const>;

constexpr const char* kOffOn[] = {"Off", "On"};
constexpr const char* kDwells[] = {"None", "Long", "Short"};
constexpr const char* kLambdas[] = {"+", "-", "=", "?", " ", "A", "D",
                                    "E", "S", "T", "V", "X", "*"};
constexpr const char* kAffectors[] = {"None", "Accel", "Decel"};
constexpr const char* kModes[] = {"N/A", "Closed", "Open"};
constexpr const char* kThrottles[] = {"None", "Idle", "WOT"};
constexpr const char* kFalseTrue[] = {"False", "True"};
constexpr const char* kIdleSpeeds[] = {"+", "-", "=", "?", " ", "A", "D", "E", "S", "T", "V", "X"};

struct Row {
  int seq;
  const char* shortName;
  const char* longName;
  int type;
  double factor;
  int decimals;
  double plotFactor;
  Colour colour;  ///< 0xBBGGRR
  int style, width;
  int offset;
  const char* families;  ///< a digit for each
  const char* flags;     ///< M mandatory, N never on the Sample Graph, Z zeros are not shown
  Texts texts = {};
};

constexpr const char* all = "123456";

// clang-format off
constexpr std::array<Row, kColumnCount> kRows{{
    {1,  "Sample",   "Sample No.",                 0, 1,     0, 1,    0x002710, 1, 1, 0,    all,     "MN"},
    {2,  "CAS Err",  "CAS Error",                  2, 1,     0, 72,   0x004E20, 1, 1, 0,    "12",    "", kOffOn},
    {3,  "RPM",      "RPM",                        0, 1,     0, 0.01, 0x408000, 1, 3, 0,    all,     "M"},
    {4,  "Dwell",    "Ignition Dwell",             2, 1,     0, 42,   0x009C40, 1, 1, 0,    "12",    "", kDwells},
    {5,  "MAP",      "Manifold Air Pressure",      1, 10,    1, 1,    0xFFFF00, 1, 3, 0,    all,     ""},
    {6,  "Lambda",   "Lambda Adjustment",          2, 1,     0, 4,    0x00EA60, 1, 1, 0,    "125",   "", kLambdas},
    {7,  "O2",       "O2 Sensor",                  0, 1,     0, 1,    0x011170, 1, 3, 0,    "125",   ""},
    {8,  "O2 A",     "O2 Affector",                2, 1,     0, 44,   0x013880, 1, 1, 0,    "12",    "", kAffectors},
    {9,  "WGCM",     "Wastegate Control Mode",     2, 1,     0, 47,   0x015F90, 1, 1, 0,    "12",    "", kModes},
    {10, "WG%",      "Wastegate %",                0, 1,     0, 1,    0x808040, 1, 3, 0,    "1256",  "Z"},
    {11, "EGR",      "EGR Position",               0, 1,     0, 1,    0x01ADB0, 1, 3, 0,    "12",    "Z"},
    {12, "Fuel P",   "Fuel Pump Running",          2, 1,     0, 82,   0x01D4C0, 1, 1, 0,    "12",    "", kOffOn},
    {13, "Inj W",    "Injector Width",             1, 100,   2, 10,   0x00FFFF, 1, 3, 0,    "1234",  ""},
    {14, "Inj %",    "Injector %",                 1, 10,    1, 1,    0x0222E0, 1, 1, 0,    all,     ""},
    {15, "Throttle", "Throttle Switch",            2, 1,     0, 46,   0x0249F0, 1, 1, 0,    "125",   "", kThrottles},
    {16, "IAC",      "IAC Position",               0, 1,     0, 1,    0x800080, 1, 3, 0,    "125",   "Z"},
    {17, "TPS",      "Throttle Position Sensor",   1, 100,   2, 1,    0xFF00FF, 1, 3, 0,    all,     "Z"},
    {18, "Neutral",  "Neutral Switch",             2, 1,     0, 86,   0x02BF20, 1, 1, 0,    "125",   "", kOffOn},
    {19, "Comp",     "Compressor Clutch",          2, 1,     0, 76,   0x02E630, 1, 1, 0,    "125",   "", kOffOn},
    {20, "Knock",    "Knock Sensor",               0, 1,     0, 1,    0x0000FF, 1, 3, 0,    all,     ""},
    {21, "IAdv",     "Ignition Advance",           1, 10,    1, 1,    0xFF8000, 1, 3, 0,    all,     ""},
    {22, "Volt",     "Voltage",                    1, 10,    1, 1,    0x035B60, 1, 1, 0,    "12345", ""},
    {23, "C Temp",   "Coolant Temperature",        0, 1,     0, 1,    0x00FF00, 1, 3, 0,    all,     ""},
    {24, "Speed",    "Speed",                      1, 10,    1, 1,    0xFF0080, 1, 3, 0,    "125",   "MZ"},
    {25, "Eng Fan",  "Engine Fan",                 2, 1,     0, 80,   0x03D090, 1, 1, 0,    "125",   "", kOffOn},
    {26, "Cnd Fan",  "Condenser Fan",              2, 1,     0, 78,   0x03F7A0, 1, 1, 0,    "12",    "", kOffOn},
    {27, "A/C",      "A/C Switch",                 2, 1,     0, 70,   0x041EB0, 1, 1, 0,    "12",    "", kOffOn},
    {28, "PRC",      "PRC Valve/Hot Restart",      2, 1,     0, 90,   0x0445C0, 1, 1, 0,    "12",    "", kOffOn},
    {29, "Ch Purge", "Charcoal Purge",             2, 1,     0, 74,   0x046CD0, 1, 1, 0,    "12",    "", kOffOn},
    {30, "Knock C",  "Knock Count",                0, 1,     0, 1,    0x0493E0, 1, 1, 0,    "125",   ""},
    {31, "A Temp",   "Air Temperature",            1, 10,    1, 1,    0xA00000, 1, 3, 0,    all,     ""},
    {32, "Aux NS",   "Aux Input Native Slow",      1, 1000,  2, 10,   0x04E200, 1, 1, 0,    "12",    "Z"},
    {33, "Knock T",  "Knock Threshold",            0, 1,     0, 1,    0xFF80FF, 1, 3, 0,    "12",    ""},
    {34, "ATR",      "Air Temp Retard",            1, 10,    1, 10,   0x0080FF, 1, 3, 0,    "12",    ""},
    {35, "L3",       "L3 Fast Adjustment",         0, 1,     0, 10,   0xC08080, 1, 3, 0,    "12",    "Z"},
    {36, "A/F",      "A/F Ratio",                  1, 1000,  2, 10,   0x057E40, 1, 1, 0,    all,     "Z"},
    {37, "Boost",    "Boost",                      1, 10,    1, 10,   0x05A550, 1, 1, 0,    all,     "Z"},
    {38, "Vacuum",   "Vacuum",                     1, 10,    1, 1,    0x05CC60, 1, 3, 0,    all,     "Z"},
    {39, "Aux NF",   "Aux Input Native Fast",      1, 1000,  2, 10,   0x05F370, 1, 1, 0,    "12",    "Z"},
    {40, "Aux CS",   "Aux Input Converted Slow",   1, 1000,  2, 10,   0x061A80, 1, 1, 0,    "12",    "Z"},
    {41, "Aux CF",   "Aux Input Converted Fast",   1, 1000,  2, 10,   0x064190, 1, 1, 0,    "12",    "Z"},
    {42, "Knock E",  "Knock Event Indicator",      2, 1,     0, 55,   0x0668A0, 1, 1, 0,    "125",   "Z", kFalseTrue},
    {43, "MAP Lmt",  "Map Limit Event Indicator",  2, 1,     0, 65,   0x068FB0, 1, 1, 0,    "125",   "Z", kFalseTrue},
    {44, "Rev Lmt",  "Rev Limit Event Indicator",  2, 1,     0, 75,   0x06B6C0, 1, 1, 0,    "125",   "Z", kFalseTrue},
    {45, "Power",    "Power",                      1, 1,     0, 1,    0x0000FF, 1, 3, 0,    all,     "MZ"},
    {46, "Torque",   "Torque",                     1, 1,     0, 1,    0xFF0000, 1, 3, 0,    all,     "MZ"},
    {47, "PWOFF",    "Injector Off Width",         1, 100,   2, 1,    0x00FFFF, 1, 3, 0,    "34",    ""},
    {48, "GAMA",     "GAMA Fuelling Correction",   1, 100,   2, 10,   0xFF0000, 1, 1, 0,    "34",    ""},
    {49, "CR",       "O2 Closed Loop Correction",  1, 1000,  3, 100,  0xFF00FF, 3, 2, 1000, "34",    ""},
    {50, "EGOV",     "O2 Sensor Voltage",          1, 100,   2, 10,   0x00FFFF, 1, 5, 0,    "346",   ""},
    {51, "GPO1",     "General Purpose Output 1",   1, 100,   2, 1,    0x8000FF, 1, 3, 0,    "34",    ""},
    {52, "TDUTY",    "Aux Injector %",             1, 100,   2, 1,    0x07EF40, 1, 3, 0,    "4",     ""},
    {53, "TPWON",    "Aux Injector On Width",      1, 100,   2, 1,    0xC080FF, 1, 3, 0,    "4",     ""},
    {54, "TPWOFF",   "Aux Injector Off Width",     1, 100,   2, 1,    0xFF80FF, 3, 3, 0,    "4",     ""},
    {55, "AD1",      "Analogue Digital Input 1",   1, 100,   2, 10,   0x086470, 1, 3, 0,    "4",     ""},
    {56, "AD2",      "Analogue Digital Input 2",   1, 100,   2, 10,   0x088B80, 1, 3, 0,    "4",     ""},
    {57, "AD3",      "Analogue Digital Input 3",   1, 100,   2, 10,   0x08B290, 1, 3, 0,    "4",     ""},
    {58, "AD4",      "Analogue Digital Input 4",   1, 100,   2, 10,   0x08D9A0, 1, 3, 0,    "4",     ""},
    {59, "GPO2",     "General Purpose Output 2",   1, 100,   2, 1,    0x0900B0, 1, 3, 0,    "4",     ""},
    {60, "GFG",      "GFG",                        1, 1,     0, 1,    0x0927C0, 1, 1, 0,    "4",     ""},
    {61, "SIA",      "Secondary Ignition Advance", 1, 10,    1, 1,    0xFF8000, 3, 3, 0,    "4",     ""},
    {62, "KNR",      "Knock Control Retard",       1, 10,    1, 1,    0x0975E0, 3, 3, 0,    "4",     ""},
    {63, "Secs",     "Seconds",                    1, 10000, 3, 1,    0x099CF0, 1, 1, 0,    all,     "MN"},
    {64, "Zone",     "Zone Number",                0, 1,     0, 0.1,  0x800080, 1, 3, 0,    "125",   ""},
    {65, "Idle Sp",  "Idle Speed Control",         2, 1,     0, 5,    0x09EB10, 1, 1, 0,    "5",     "", kIdleSpeeds},
    {66, "Fuel ZV",  "Current Fuel Zone Value",    0, 1,     0, 1,    0x4080FF, 1, 3, 0,    "125",   ""},
    {67, "Ign ZV",   "Current Ignition Zone Value", 0, 1,     0, 1,    0xFF8080, 1, 3, 0,    "125",   ""},
    {68, "Tumble",   "Tumble Generator On",        2, 1,     0, 81,   0xEADB95, 1, 3, 0,    "5",     "", kOffOn},
    {69, "L4",       "L4 Adjustment",              0, 1,     0, 10,   0xC08000, 1, 3, 0,    "12",    "Z"},
    {70, "L3 Idle",  "L3 Adjustment Idle",         1, 10,    1, 1,    0xC51848, 1, 3, 0,    "12",    "Z"},
    {71, "MAF",      "MAF Voltage",                1, 10,    1, 10,   0x808040, 1, 3, 0,    "6",     "Z"},
    {72, "MAF M",    "Modified MAF Voltage",       1, 10,    1, 10,   0xC0C081, 1, 3, 0,    "6",     "Z"},
    {73, "IAdv M",   "Modified Igntn Advance",     1, 10,    1, 1,    0xFFC891, 1, 3, 0,    "6",     ""},
    {74, "Fuel% M",  "Modified Fuel %",            1, 10,    1, 1,    0x8888FF, 1, 3, 1000, "6",     ""},
    {75, "BCL",      "Boost Closed Loop",          0, 1,     0, 0.1,  0x0AA651, 1, 3, 0,    "6",     ""},
    {76, "LS",       "Load Site",                  0, 1,     0, 1,    0x40FF00, 1, 3, 0,    "6",     ""},
    {77, "MLP",      "MAP Load Point",             0, 1,     0, 1,    0x0DB391, 1, 3, 0,    "6",     ""},
    {78, "MAP D",    "MAP Digital",                0, 1,     0, 1,    0xFFFFAA, 1, 3, 0,    "6",     ""},
    {79, "MAF D",    "MAF Digital",                0, 1,     0, 1,    0xB8B872, 1, 3, 0,    "6",     ""},
    {80, "TPS D",    "TPS Digital",                0, 1,     0, 1,    0xFF8CFF, 1, 3, 0,    "6",     ""},
    {81, "MAF Hz",   "MAF Hertz",                  0, 1,     0, 0.1,  0x808040, 1, 3, 0,    "6",     "Z"},
    {82, "MAF M Hz", "Modified MAF Hertz",         0, 1,     0, 0.1,  0xC0C081, 1, 3, 0,    "6",     "Z"},
    {83, "A/F Tgt",  "A/F Target",                 1, 1000,  2, 10,   0x4AD500, 1, 3, 0,    "12",    "Z"},
}};
// clang-format on

/// Item numbers in the order of every list that shows items: by short name, "Sample" and "Secs"
/// first.
constexpr std::array<int, kColumnCount> kDisplayOrder{
    1,  63, 27, 31, 55, 56, 57, 58, 36, 83, 34, 41, 40, 39, 32, 75, 37, 2,  29, 19, 26,
    49, 23, 4,  11, 50, 25, 12, 66, 74, 48, 60, 51, 59, 16, 21, 73, 65, 67, 14, 13, 20,
    30, 42, 33, 62, 35, 70, 69, 6,  76, 71, 81, 79, 72, 82, 5,  78, 43, 77, 18, 7,  8,
    28, 45, 47, 44, 3,  61, 24, 52, 15, 46, 17, 80, 53, 54, 68, 38, 22, 9,  10, 64};

std::array<int, kColumnCount> KeysBySeq() {
  std::array<int, kColumnCount> keys{};
  int key = 0;
  for (const int seq : kDisplayOrder) keys[static_cast<std::size_t>(seq - 1)] = ++key;
  return keys;
}

std::vector<int> FamiliesOf(std::string_view digits) {
  const auto has = [&](char digit) { return digits.find(digit) != std::string_view::npos; };
  return MakeLogFamilyList(has('1'), has('2'), has('3'), has('4'), has('5'), has('6'));
}

clsLogDataItem ItemOfRow(const Row& row, int key) {
  const auto has = [&](char flag) {
    return std::string_view(row.flags).find(flag) != std::string_view::npos;
  };
  clsLogDataItem item;
  item.intSeq = row.seq;
  item.intKey = key;
  item.strShortName = row.shortName;
  item.strLongName = row.longName;
  item.intType = row.type;
  item.dblFactor = row.factor;
  item.varDescList.assign(row.texts.begin(), row.texts.end());
  item.lngLineWidth = row.width;
  item.lngLineStyle = row.style;
  item.lngColour = row.colour;
  item.dblSampleDisplayFactor = row.plotFactor;
  item.blnDisplayZero = !has('Z');
  item.lngStorageOffset = row.offset;
  item.blnSampleGraphPlottable = !has('N');
  item.SetDisplayDecimalPlaces(row.decimals);
  item.blnMandatory = has('M');
  item.colApplicableLogFamilies = FamiliesOf(row.families);
  return item;
}

}  // namespace

std::vector<int> MakeLogFamilyList(bool f1, bool f2, bool f3, bool f4, bool f5, bool f6) {
  std::vector<int> ids;
  int id = 0;
  for (const bool applies : {f1, f2, f3, f4, f5, f6}) {
    ++id;
    if (applies) ids.push_back(id);
  }
  return ids;
}

Catalogue BuildDataItemCatalogue() {
  Catalogue catalogue;
  const auto keys = KeysBySeq();
  for (const Row& row : kRows)
    catalogue.gcolFixedDataItems.AddDirect(
        ItemOfRow(row, keys[static_cast<std::size_t>(row.seq - 1)]));
  catalogue.gcolDefaultDataItems = catalogue.gcolFixedDataItems.Duplicate();
  return catalogue;
}

}  // namespace tarnview
