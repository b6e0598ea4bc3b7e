#include "WholeGraph.h"

namespace tarnview {
namespace {

using ZoomTest = WholeGraph;

TEST_F(ZoomTest, ZoomsAboutTheSelectedPointOrTheMiddle) {
  OpenLog(5000);
  ExpectFacts({"range", "boxes"}, R"(
# The selected point's own number counts, one row further on than its sample.
501, 601, point chSampleGraph 1 51; type cboZoomAmount 2; in -> 527-577 | 501, 601, no_point; in -> 526-576 | 501, 601, point chSampleGraph 1 51; type cboZoomAmount 10; in -> 547-557
501, 601, point chSampleGraph 1 51; type cboZoomAmount 100; in -> 552-554 | 501, 601, point chSampleGraph 1 51; type cboZoomAmount 3; in -> 535-569
1, 101, point chSampleGraph 1 1; type cboZoomAmount 2; in -> 1-27 | 4900, 5000, point chSampleGraph 1 101; in -> 4975-5000 | 1, 101, no_point; in -> 26-76
501, 601, point chSampleGraph 1 51; type cboZoomAmount 3; out -> 402-702 | 101, 201, point chSampleGraph 1 51; type cboZoomAmount 4; out -> 1-352
4800, 4900, point chSampleGraph 1 51; out -> 4651-5000 | 1, 5000, point chSampleGraph 1 400; type cboZoomAmount 2; in -> 2751-5000 | 2001, 2101, click cmdZoomFull -> 1-5000
# Previous Graph swaps the two last, as often as one likes.
501, 601, back -> 1-5000 | 501, 601, back; back -> 501-601 | 501, 601, back; back; back -> 1-5000 | 501, 601, point chSampleGraph 1 51; in; back; in -> 527-577
# An amount outside the box becomes 2.
501, 601, no_point; type cboZoomAmount 1; in -> 526-576 | 501, 601, type cboZoomAmount 101; in -> 527-577 | 501, 601, type cboZoomAmount x; in -> 527-577
# Without Quick Graph no more than 1000 at once.
2001, 2801, click chkQuickGraph; no_point; type cboZoomAmount 2; out -> 1901-2901 [1] | 2001, 2101, click cmdZoomFull -> 2001-3000 [1]
# Draw holds to it as well, and to the log.
1, 1001 -> 1-1001 | 1, 1002 -> 2-1002 [1] | 50, 20 -> 19-21 | 4900, 9999 -> 1-5000 [1] | 12abc, 40 -> 12abc-40
)");
}

TEST_F(ZoomTest, MayRunWhereItDoesSomething) {
  OpenLog(5000);
  zoom.ShowPreviousGraph();
  EXPECT_EQ(Range(), "-") << "there is none";
  ExpectFacts({"zooms"}, R"(
1, 5000 -> in | 1, 4999 -> in out | 11, 21 -> in out back | 11, 20 ->  out back
)");
}

}  // namespace
}  // namespace tarnview
