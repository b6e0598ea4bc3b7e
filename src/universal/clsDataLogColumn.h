#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "presets/Clamped.h"
#include "universal/Settable.h"
#include "universal/clsDataLogColumnValues.h"

namespace tarnview {

/// What a column's fields are. A definition may name others, which store nothing.
enum ColumnType : std::int32_t { kNumericColumn = 1, kValueListColumn = 2 };
/// How the fields of a numeric column read.
enum ConversionType : std::int32_t { kPlainNumber = 0, kDateAndTime = 1 };

/// One column of a log: how its text becomes the stored integer of a data item.
class clsDataLogColumn {
 public:
  std::string strName;  ///< of the data item
  std::string strColumnTitle;
  std::int32_t lngDataItemID = 0;  ///< item number (intSeq)
  Settable<std::int32_t>
      lngColumnDecimalPlaces;  ///< 0 to 5: a value is stored times 10 to this power
  std::int32_t lngType = 0;    ///< ColumnType
  /// Shared by all duplicates of the column.
  std::shared_ptr<clsDataLogColumnValues> objColumnValues =
      std::make_shared<clsDataLogColumnValues>();
  std::string strDescription;
  Settable<double> dblOffset;  ///< added when storing, so that negative values can be stored
  Settable<std::int32_t> lngDisplayDecimalPlaces;
  Settable<double> dblDisplayFactor;  ///< value to height on the Sample Graph
  Settable<bool> blnDisplayZero;
  Settable<std::int32_t> lngColour;  ///< 0xBBGGRR
  Settable<std::int32_t> lngLineStyle;
  Settable<std::int32_t> lngLineWidth;
  Settable<double> dblMinValue;
  Settable<double> dblMaxValue;
  Settable<double> dblConversionFactor;  ///< 0 stands for not given
  Settable<double> dblConversionOffset;
  bool blnConversionFactorFirst = false;
  bool blnSetToMaximum =
      true;  ///< a value above the maximum becomes the maximum; else it is refused
  bool blnSetToMinimum = true;
  Clamped<kPlainNumber, kDateAndTime> lngConversionType;
  bool blnSmooth = false;
  std::string strUnit;                  ///< of the values; may be empty
  std::int32_t lngTitleOccurrence = 0;  ///< of several fields of that title the n-th; 0: each
  Settable<bool> blnDisplay;            ///< the Sample Graph draws it
  bool blnSigned = false;  ///< negative values are stored as they are; else they become 0

  /// The title as the headings of logs are compared with it.
  std::string strColumnTitleCaps() const { return Upper(strColumnTitle); }

  /// What a value is multiplied with when it is stored.
  double Scale() const { return PowerOfTen(lngColumnDecimalPlaces); }

  /// A copy that shares the value list. Its decimal places count as set: kept on purpose.
  clsDataLogColumn Duplicate() const {
    clsDataLogColumn copy = *this;
    copy.lngColumnDecimalPlaces = lngColumnDecimalPlaces.Value();
    return copy;
  }
};

}  // namespace tarnview
