#include <gtest/gtest.h>

#include "power/PaddedNumber.h"

namespace tarnview {
namespace {

TEST(PaddedNumber, HasItsZerosBehindTheSign) {
  EXPECT_EQ(PaddedNumber(7.46, 3, 1) + " " + PaddedNumber(-7.46, 3, 1) + " " +
                PaddedNumber(-0.004, 2, 2) + " " + PaddedNumber(12345, 3, 1) + " " +
                PaddedNumber(980.5, 4, 0),
            "007.5 -007.5 00.00 12345.0 0980");
}

}  // namespace
}  // namespace tarnview
