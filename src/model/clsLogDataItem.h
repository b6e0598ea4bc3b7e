#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "base/Colour.h"

namespace tarnview {

/// How a stored integer is read.
enum ItemType : int {
  kPlainItem = 0,   ///< value + lngStorageOffset
  kScaledItem = 1,  ///< value x dblFactor + lngStorageOffset
  kListItem = 2     ///< index into varDescList
};

/// One quantity that a log can hold: how its stored integer turns into a value and a text, how it
/// is drawn, and which log families may use it.
class clsLogDataItem {
 public:
  int intType = kPlainItem;
  std::string strShortName;  ///< column heading and legend; up to 8 characters in the catalogue
  std::string strLongName;
  std::string strColumnTitles;  ///< of the columns of a Universal log that it is read from,
                                ///< "TitleA, TitleB"
  std::string strUnit;          ///< of the values, where it is known
  int intKey =
      0;  ///< rank in display order, from 1; the item's key in its collection is "k" + intKey
  int intSeq = 0;        ///< position in the sample row, from 1: the item's column plus 1
  double dblFactor = 1;  ///< counts for scaled items only
  std::vector<std::string> varDescList;
  bool blnDisplay = true;
  long lngLineWidth = 1;  ///< 1 to 5
  long lngLineStyle = 1;  ///< 1 solid, 2 dotted, else dashed
  Colour lngColour = 0;
  double dblSampleDisplayFactor = 1;  ///< value to height on the Sample Graph's shared axis
  bool blnDisplayZero = true;         ///< false: the text of a zero is empty
  std::int32_t lngStorageOffset = 0;
  bool blnSigned = false;  ///< stored integers may be negative
  bool blnSampleGraphPlottable = true;
  bool blnMandatory = false;
  std::vector<int> colApplicableLogFamilies;  ///< ids of log families

  int lngDisplayDecimalPlaces() const { return places_; }
  /// Also rebuilds the format mask.
  void SetDisplayDecimalPlaces(int places);
  /// "0", or "0." and one "0" for each place.
  const std::string& strDisplayFormatMask() const { return mask_; }

  /// Clamp bounds of SetRawData; setting one raises its flag for good.
  void SetMaxValue(double value);
  void SetMinValue(double value);
  double dblMaxValue() const { return max_; }
  double dblMinValue() const { return min_; }
  bool blnMaxValueSet() const { return maxSet_; }
  bool blnMinValueSet() const { return minSet_; }

  bool InFamily(int family) const;
  /// The factor that counts: dblFactor of a scaled item, 1 of the others.
  double Factor() const { return intType == kScaledItem ? dblFactor : 1; }

  /// The text of a stored integer. Empty: a zero that is not shown, a list index outside the list.
  std::string GetFormattedData(std::int32_t stored) const;
  /// The value of a stored integer; of a list item the index itself.
  double GetRawData(std::int32_t stored) const {
    if (intType == kListItem) return stored;
    const auto value = static_cast<double>(std::int64_t{stored} - lngStorageOffset);
    const double factor = Factor();
    if (factor == 0) return 0;
    return value / factor;
  }
  std::int32_t LeastStored() const {
    if (blnSigned) return std::numeric_limits<std::int32_t>::min();
    return 0;
  }
  /// The stored integer of a value: clamped to the bounds, scaled, rounded half to even, and not
  /// below LeastStored.
  std::int32_t SetRawData(double value) const;

  /// A deep copy (a plain copy is one too).
  clsLogDataItem Duplicate() const { return *this; }

 private:
  int places_ = 0;
  std::string mask_ = "0";
  double max_ = 0, min_ = 0;
  bool maxSet_ = false, minSet_ = false;
};

}  // namespace tarnview
