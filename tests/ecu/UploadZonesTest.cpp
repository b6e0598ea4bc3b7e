#include <gtest/gtest.h>

#include "ecu/UploadZones.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

/// The names of the zones that are left alone.
std::string LeftAlone(const ZoneSettings& zones) {
  std::string names;
  for (std::size_t index = 0; index < zones.size(); ++index)
    if (zones[index] == -1) names += ZoneName(static_cast<int>(index)) + " ";
  return names;
}

ZoneSettings Counting() {
  ZoneSettings zones{};
  for (std::size_t index = 0; index < zones.size(); ++index)
    zones[index] = static_cast<std::int16_t>(index);
  return zones;
}

TEST(UploadZones, OfChangesAreThoseThatDiffer) {
  ZoneSettings zones = Counting(), comparison = Counting();
  comparison[0] = 7;
  comparison[255] = -1;
  zones[9] = comparison[9] = -1;
  for (std::size_t index = 10; index < 250; ++index) comparison[index] = 300;
  KeepChangesOnly(zones, comparison);
  EXPECT_EQ(LeftAlone(zones), "z1 z2 z3 z4 z5 z6 z7 z8 z9 z850 z855 z860 z865 z870 ");
  EXPECT_EQ(zones[255], 255);
  EXPECT_EQ(zones[0], 0);
}

TEST(UploadZones, LeaveTheAirAloneBetweenOldAndNewChips) {
  const Date before = MakeDate(2001, 2, 28), from = MakeDate(2001, 3, 1),
             later = MakeDate(2004, 1, 1);
  EXPECT_TRUE(AirZonesFit(from, later));
  EXPECT_TRUE(AirZonesFit(before, before - 400));
  EXPECT_FALSE(AirZonesFit(before, from));
  EXPECT_FALSE(AirZonesFit(later, before));
  ZoneSettings zones = Counting();
  LeaveAirZonesAlone(zones);
  EXPECT_EQ(LeftAlone(zones), "z4 z860 z865 z870 z875 ");
}

TEST(UploadZones, NeverSendTheDefaultAtmosphere) {
  ZoneSettings zones = Counting();
  LeaveAtmosphereAlone(zones);
  EXPECT_EQ(LeftAlone(zones), "z720 ");
}

}  // namespace
}  // namespace tarnview
