#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"

namespace tarnview {

/// The values of the section "General" of Tarnview.ini, each with its default.
struct Settings {
  std::string gstrInitialDirectory;
  int gintDefaultFileType = 1;
  int gintZoomAmount = 2;
  bool gblnQuickGraph = true;
  /// Item numbers (intSeq): RPM, MAP, O2, TPS, Knock, IAdv, C Temp, A/F.
  std::vector<int> gcolCheckedDataItems{3, 5, 7, 17, 20, 21, 23, 36};
  std::string gstrDefaultWorkingDirectory;
  std::string gstrAuxInputConversionFile;  ///< empty: the built-in table
  std::string gstrO2InputConversionFile;
  std::string gstrGenericDefinitionFile;
  double gdblDefaultEngineSize = 1.6;  ///< litres: 1.6 or 1.8
  Date gdatDefaultChipDate = MakeDate(2000, 1, 1);
  int gintDefaultChipVersion = 2;           ///< 1 to 3
  int gintDefaultAtmosphericPressure = 75;  ///< kPa, 75 to 115
  bool gblnSilentDefaults = false;
  int gintPlotFromTemperature = 0;  ///< degrees C, -99 to 99
  bool gblnDisplayZoneInfluence = true;
  bool gblnAutoOpenDataTags = true;
  bool gblnFixGraphMax = false;
  int gintGraphYMax = 250;  ///< 10 to 1000
  bool gblnShowCheckedOnly = false;
  bool gblnScatterGraphAutoDraw = false;
  int glngShowPointWidth = 100;            ///< 50 to 1000
  double gdblDataLogLineFrequency = 6.66;  ///< lines per second
  int glngInitialPlotWidth = 0;            ///< samples, 0 to 300000
  int gintGraphColourScheme = 1;           ///< 1 grey, 2 black, 3 white
  std::vector<std::string> recentFiles;    ///< "id|path", the latest first
};

/// Reads a settings file's text; a key that is missing or wrong takes its default or is clamped.
Settings ReadSettings(std::string_view text);

}  // namespace tarnview
