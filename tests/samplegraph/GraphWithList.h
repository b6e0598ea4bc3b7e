#pragma once

#include "GraphStandIn.h"
#include "desk/StatusArea.h"
#include "model/clsFileTypes.h"
#include "samplegraph/SampleDetails.h"
#include "ui/ProgressBar.h"

namespace tarnview {

/// The same with the list of items, the chart and the status bar of the main window.
class GraphWithList : public GraphStandIn {
 protected:
  FileKinds kinds = SetUpLogFamilies();
  ListView lvwSampleDetails{window, "lvwSampleDetails", {{"Item"}, {"Value", true}}, true};
  CheckBox chkShowCheckedOnly{window, "chkShowCheckedOnly", ""};
  Chart chSampleGraph{window, "chSampleGraph"};
  StatusBar bar{window, "bar", 3};
  ProgressBar progress{window, "progress"};
  StatusArea status{window, bar, progress};
  SampleDetails details{{lvwSampleDetails, chkShowCheckedOnly, chSampleGraph},
                        drawn,
                        selection,
                        log,
                        kinds.gcolLogFamilies};
};

}  // namespace tarnview
