#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/ErrorLog.h"
#include "desk/Messages.h"
#include "desk/StatusArea.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "presets/clsScatterFilter.h"
#include "scatter/PointStyle.h"
#include "ui/Chart.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"

namespace tarnview {

/// What a scatter window is set to draw. Items are numbers (intSeq).
struct ScatterRequest {
  int xItem = 0, yItem = 0;
  PointStyle style;
  int tintItem = 0;  ///< gives the points their colours; 0: all bear the style's
  bool density = false;
  clsScatterFilters objFilters;
};

/// Draws one item against another over the samples that pass the filters, and remembers what it
/// drew.
class ScatterDrawing {
 public:
  struct Controls {
    Chart& chScatterGraph;
    Frame& fraPicture;
    Label& lblEmptyPlace;  ///< what to do while there is no graph
    Frame& fraSampleDetails;
  };
  struct Surroundings {
    const OpenLog& log;
    const Settings& settings;
    StatusArea& status;
    Messages& messages;
    ErrorLog& errors;
  };
  ScatterDrawing(Form& window, const Controls& controls, const Surroundings& surroundings);

  /// Draws anew; what was drawn before is gone in any case. Message 3, which offers to draw them
  /// all, for too many samples without a filter and 46 for none at all, unless `blnQuiet`.
  void DrawScatter(const ScatterRequest& request, bool blnQuiet);
  /// Gives the graph on show the request's colouring and nothing else of it.
  void Recolour(const ScatterRequest& request);
  /// Gives the graph on show the colour scheme of the settings.
  void TakeColourScheme();
  /// The log goes: the graph stays, but its points have no samples any more.
  void LogChanged() { ofOpenLog_ = false; }

  bool Drawn() const { return controls_.chScatterGraph.Data().Cloud() != nullptr; }
  bool OfOpenLog() const { return Drawn() && ofOpenLog_; }

  // Of the graph on show.

  /// The points with their `Sample` values.
  const PointCloud& dblScatterData() const { return *controls_.chScatterGraph.Data().Cloud(); }
  /// The store index of a point, from 1; -1 where the log is another by now.
  std::int32_t IndexOfPoint(int point) const {
    if (OfOpenLog()) return rows_[static_cast<std::size_t>(point - 1)];
    return -1;
  }
  /// The log's path.
  const std::string& strGraphedFile() const { return strGraphedFile_; }
  /// The filters as texts.
  const std::vector<std::string>& Filters() const { return filters_; }

 private:
  void Clear();
  bool MayBuild(const ScatterRequest& request, bool blnQuiet);
  void Build(const ScatterRequest& request, bool blnQuiet);
  ChartDescription Describe(const ScatterRequest& request) const;
  void Colour(PointCloud& cloud, const ScatterRequest& request) const;

  Form& window_;
  Controls controls_;
  const OpenLog& log_;
  const Settings& settings_;
  StatusArea& status_;
  Messages& messages_;
  ErrorLog& errors_;
  std::vector<std::int32_t> rows_;  ///< store index of each point
  std::string strGraphedFile_;
  std::vector<std::string> filters_;
  bool ofOpenLog_ = false;
};

}  // namespace tarnview
