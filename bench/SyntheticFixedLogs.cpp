#include "SyntheticFixedLogs.h"

#include <cmath>
#include <cstdio>

namespace tarnview::bench {
namespace {

/// Where the drive stands at a sample: a slow swing from idle to full throttle and back.
struct Moment {
  explicit Moment(int sample) {
    throttle = 0.5 - 0.5 * std::cos(sample / 90.0);
    RPM = static_cast<int>(850 + 6200 * throttle * throttle);
    MAP = 32 + 150 * throttle;
    advance = static_cast<int>(10 + 22 * (1 - throttle));
    ratio = 14.7 - 2.9 * throttle;
  }
  double throttle, MAP, ratio;
  int RPM, advance;
};

template <class... Values>
void AddLine(std::string& log, const char* format, Values... values) {
  char line[200];
  std::snprintf(line, sizeof line, format, values...);
  log += line;
}

const char* OnOff(bool on) { return on ? "On" : "Off"; }

}  // namespace

std::string SyntheticTec2Log(int samples) {
  std::string log = "Tec-2\r\nSECONDS  RPM   AD MAP   CLT GAMA MAT TPS\r\n";
  for (int i = 1; i <= samples; ++i) {
    const Moment now(i);
    AddLine(log,
            "%8.*f %5d %2d %5.1f %3d %4.2f %3d %4.1f %5.3f %5.2f %5.2f %6.2f %5.2f %5.1f %5.1f "
            "%5.2f %6.2f \r\n",
            i > 99999 ? 1 : 2, i > 99999 ? 9999.5 : i * 0.1, now.RPM, now.advance, now.MAP, 88,
            1 + now.throttle / 9, 25 + i / 9000, 99 * now.throttle, now.throttle / 50 - 0.01,
            now.ratio, 0.45 + now.throttle / 3, 100 * now.throttle, 13.8, 3 + now.throttle * 9,
            85 * now.throttle, 2 + 9 * now.throttle, 0.52);
  }
  return log;
}

std::string SyntheticLinkPlusLog(int samples) {
  std::string log =
      "Link "
      "Plus\r\n\r\nCount\tRPM\tMAP\tTPS\tOXY\tETEMP\tVOLTS\tZONE\t%FF\tADV\t%"
      "WG\tKNK\tIAT\tIDLE\tKPH\tLAMBST\t"
      "IDLEST\tKNKCNT\tCURRFL\tCURRIG\tRadFan\tNeutPk\tAirCon\tMAPLim\tRPMLim\tTPSCls\tKnock\r\n";
  for (int i = 1; i <= samples; ++i) {
    const Moment now(i);
    AddLine(log,
            "%d\t%d\t%.1f\t%.2f\t%d\t%d\t%.1f\t%d\t%d\t%d\t%d\t%d\t%.1f\t%d\t%d\t%c\t%c\t%d\t%d\t%"
            "d\t%s\t%s\t%s\t%s\t%s"
            "\t%s\t%s\r\n",
            i, now.RPM, now.MAP, 100 * now.throttle, static_cast<int>(75 + 12 * now.throttle), 88,
            13.8, 200 + now.RPM / 100, static_cast<int>(4 + 80 * now.throttle), now.advance,
            static_cast<int>(50 * now.throttle), static_cast<int>(3 + 9 * now.throttle),
            25.5 + i / 9000, 30, i / 7 % 120, "+-=?A"[i % 5], "+-= A"[i / 5 % 5], i / 9000,
            90 + i % 30, 20 + i % 9, OnOff(i % 900 < 200), OnOff(i % 1000 < 100), OnOff(false),
            OnOff(false), OnOff(i % 700 == 0), now.throttle < 0.05 ? "Open" : "Closed",
            OnOff(i % 500 == 0));
  }
  return log;
}

std::string SyntheticUTECCSVLog(int samples) {
  std::string log =
      "TIME,RPM,MAP,MAF,MAF,TPS,SITE,COUNT,AFR,IGN#1,INJ#1,IGN,FUEL,BOOST,H2O,AIR,O2,MLP\r\n"
      ",,PSIG,DIG,HZ,,,,,,,,,(OL),,,,\r\n";
  for (int i = 1; i <= samples; ++i) {
    const Moment now(i);
    AddLine(
        log,
        "%d,%4d,%5.1f,%3d,%4d,%5.1f,%3d,%3d,%5.2f,%5.1f,%5.1f,%s,%5.1f,%6.1f,%3d,%3d,%5.2f,%3d\r\n",
        i * 200, now.RPM, (now.MAP - 100) / 7, 40 + i % 50, now.RPM / 3, 100 * now.throttle,
        20 + i % 9, i / 9000, now.ratio, now.advance + 0.5, 5 + 110 * now.throttle,
        i % 3 ? " 21.5" : "  ECU", -2.5 + now.throttle, 99 * now.throttle, 88, 25 + i / 9000, 0.45,
        12);
  }
  return log;
}

}  // namespace tarnview::bench
