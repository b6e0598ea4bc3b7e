#pragma once

#include <cstdint>
#include <string>

#include "model/clsLogDataItems.h"
#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"
#include "universal/clsDataLogColumns.h"

namespace tarnview {

/// Items of a log's own are numbered from here on, up to the last.
inline constexpr int kFirstOwnItem = 101, kLastOwnItem = 2200;

/// A Universal Data Log Definition: how to read a delimited text log of any logger.
class clsDataLog {
 public:
  clsDataLogColumns objColumns;
  double dblLineFrequency = 0;  ///< lines per second; 0: the log has a time column of its own
  std::int32_t lngDelimiterAsciiCharacter = 0;
  std::int32_t lngDataLinesBefore = 0;           ///< lines ahead of the first data line
  std::int32_t lngColumnHeadersLinesBefore = 0;  ///< lines ahead of the column titles
  std::string strFileIDText;                    ///< by which a log is known; empty: any text is one
  std::int32_t lngFileIDTextColumnsBefore = 0;  ///< characters ahead of it on its line
  std::int32_t lngFileIDTextLinesBefore = 0;
  std::string strFileExtension;
  std::string strName;
  bool blnIgnoreDuplicateColumns = false;
  clsSampleGraphPresets objPresetSampleGraphs;
  clsScatterGraphPresets objPresetScatterGraphs;
  std::string strVersion;
  std::string strComments;
  double dblAutoGearSpeedFactor =
      0;  ///< the log's unit of speed to metres per second; 0: not given

  // How a log is written whose lines are not simply plain fields. Each is optional; older programs
  // pass them over.
  std::string
      strEncoding;  ///< "UTF-8", "UTF-16LE", "UTF-16BE", "WINDOWS-1252"; empty: bytes as they stand
  std::string strDecimalSign;  ///< "," for a decimal comma
  bool blnQuoted = false;      ///< fields may stand between double quotes, and a delimiter in them
  bool blnDelimiterRuns =
      false;  ///< several delimiters running are one, and some in front of a line none
  std::string strCommentPrefix;   ///< lines that start so are no samples
  std::int32_t lngTitleRows = 0;  ///< 2: titles stand over two rows, a part in each
  std::int32_t lngUnitsRow = 0;   ///< lines from the titles to the units; 0: there are none
  std::string
      strNoValueTexts;  ///< with "|" between: such a field, or an empty one, keeps the last value
  std::string
      strTitlesStart;  ///< of the line of titles, wherever it stands; empty: lines are counted
  std::string
      strTitlesFrom;  ///< "CHANNELS": a preamble of channels; "NONE"; empty: the line of titles
  std::string strTimeForm;  ///< of item 63 (TimeFormName): it counts from its first, and lines
                            ///< without it are none
  bool blnOwnDataItems =
      false;  ///< columns may feed items from kFirstOwnItem up, which the log alone has

  /// Any of these is given.
  bool IsFormed() const {
    return !strEncoding.empty() || !strDecimalSign.empty() || blnQuoted || blnDelimiterRuns ||
           !strCommentPrefix.empty() || !strNoValueTexts.empty() || !strTitlesStart.empty() ||
           !strTitlesFrom.empty() || !strTimeForm.empty() || blnOwnDataItems || lngTitleRows > 0;
  }
};

/// Whether presets and filters of a definition may use an item: it has a column, or every log has
/// it (`blnMandatory` of the catalogue).
bool IsDataItemInDataLogDefinition(int lngDataItemID, const clsDataLog& objDefinition,
                                   const clsLogDataItems& catalogue);

}  // namespace tarnview
