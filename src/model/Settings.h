#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "model/BeyondSettings.h"
#include "model/clsWindowConfig.h"

namespace tarnview {

/// Where each window stood; nothing for one that keeps its design size.
struct WindowPlacements {
  std::optional<clsWindowConfig> main, scatterGraph, powerGraph, speedGraph, maintenance;
};

/// Where the 3D graph's eye stands when it opens or is reset: whole degrees, 0 to 359.
struct GraphAngles {
  int lngFuelRotation = 20;
  int lngFuelElevation = 240;
  int lngIgnitionRotation = 20;
  int lngIgnitionElevation = 130;
};

/// The values of the section "General" of Tarnview.ini and of its small neighbours, each with its
/// default.
struct Settings {
  std::string
      gstrInitialDirectory;  ///< as it was read; dialogs start at gstrDefaultWorkingDirectory
  int gintDefaultFileType = 1;
  int gintZoomAmount = 2;
  bool gblnQuickGraph = true;
  /// Item numbers (intSeq): RPM, MAP, O2, TPS, Knock, IAdv, C Temp, A/F.
  std::vector<int> gcolCheckedDataItems{3, 5, 7, 17, 20, 21, 23, 36};
  std::string gstrLogEXE;         ///< takes logs from the ECU and uploads to it
  std::string gstrConversionEXE;  ///< turns binary logs into text
  std::string gstrAlternativeBackgroundPicture;
  std::string gstrDefaultWorkingDirectory;
  std::string gstrAuxInputConversionFile;  ///< empty: the built-in table
  std::string gstrO2InputConversionFile;
  std::string gstrGenericDefinitionFile;
  std::string gstrLastConvertedBinary;
  std::string gstrSerialComPort = "1";  ///< "1" to "9"
  double gdblDefaultEngineSize = 1.6;   ///< litres: 1.6 or 1.8
  Date gdatDefaultChipDate = MakeDate(2000, 1, 1);
  int gintDefaultChipVersion = 2;           ///< 1 to 3
  int gintDefaultAtmosphericPressure = 75;  ///< kPa, 75 to 115
  bool gblnSilentDefaults = false;
  std::string gstrDefaultBenchmark;
  int gintPlotFromTemperature = 0;  ///< degrees C, -99 to 99
  bool gblnDisplayZoneInfluence = true;
  bool gblnDisplaySampleInScatter = true;
  std::array<bool, 4> gblnUploadDefaults{true, true, false, false};
  bool gblnRetainBinary = true;
  bool gblnAutoOpenDataTags = true;
  WindowPlacements windows;
  bool gblnFixGraphMax = false;
  int gintGraphYMax = 250;  ///< 10 to 1000
  bool gblnShowCheckedOnly = false;
  bool gblnAutoFileNames = false;
  bool gblnScatterGraphAutoDraw = false;
  bool gblnAutoScatterFilter = true;
  int glngShowPointWidth = 100;            ///< 50 to 1000
  double gdblDataLogLineFrequency = 6.66;  ///< lines per second
  bool gblnAutoGearSelection = true;
  int gintGearSpeedUnits = 1;                ///< 1 mph, 2 km/h, 3 by the factor below
  double gdblGearSpeedConvFactor = 0.44704;  ///< to metres per second, 0 to below 100
  int glngInitialPlotWidth = 0;              ///< samples, 0 to 300000
  int gintAmbientTemp = 20;                  ///< degrees C, -30 to 60
  int gintHumidityType = 0;                  ///< 0 relative humidity, 1 wet bulb temperature
  int gintRelativeHumidity = 50;             ///< per cent, or degrees C up to gintAmbientTemp
  bool gblnSAECorrection = false;
  int gintGraphColourScheme = 1;  ///< 1 grey, 2 black, 3 white
  GraphAngles angles;             ///< section "3D Graph"
  BeyondSettings beyond;
  std::vector<std::string> recentFiles;            ///< "id|path", the latest first
  std::vector<std::string> recentPowerGraphFiles;  ///< paths, the latest first
  bool firstRun =
      false;  ///< no file yet, or one fresh from a template: no user's choices are in it
};

/// What the zoom box offers.
inline constexpr std::array<int, 10> kZoomBoxAmounts{2, 3, 4, 5, 10, 20, 30, 40, 50, 100};
/// An amount that the zoom box lacks becomes the least, one beyond the box the greatest.
int ZoomAmount(int wanted);

/// Reads a settings file's text; a key that is missing or wrong takes its default or is clamped.
Settings ReadSettings(std::string_view text);

}  // namespace tarnview
