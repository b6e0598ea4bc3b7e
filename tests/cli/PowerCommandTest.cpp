// Power of a pull in the example log: what each option changes, and what comes of a wrong one.

#include "cli/RunCli.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

TEST(PowerCommand, EachOptionFillsItsFieldIn) {
  const auto run = [](const TableRow& row) {
    return RunCli("power turbo.txt --json --from 4357 --to 4389 " + row.All())
        .Told("/series/0/name /series/1/name /series/2/name /series/3/name /y_axis/max /speed/31");
  };
  ExpectTable(run, R"(
--gear 3 -> 0 Your Power (382.5 hp @ 6278 rpm, Vmax 179.9 mph) Your Torque (324.4 lbft @ 5899 rpm) nothing nothing 400 [2.538900000000581,39.40675184286936]
--gear 3 --weight 180 --smoothing 0 --units metric -> 0 Your Power (315.0 kW @ 6552 rpm, Vmax 299.2 kmh) Your Torque (480.4 Nm @ 5995 rpm) nothing nothing 500 [2.538900000000581,39.40675184286936]
--gear 2 --sae 35 90 wet:20 -> 0 Your Power (220.5 hp @ 6278 rpm, Vmax 149.7 mph) Your Torque (187.7 lbft @ 5899 rpm) nothing nothing 240 [2.538900000000581,27.760052940156918]
--gear 4 --sae 35 90 20 --benchmark turbo.pow -> 0 Your Power (752.9 hp @ 6278 rpm, Vmax 225.4 mph) Your Torque (636.3 lbft @ 5995 rpm) Benchmark Power (382.5 hp @ 6278 rpm, Vmax 179.8 mph) Benchmark Torque (324.4 lbft @ 5899 rpm) 800 [2.538900000000581,52.41097995101625]
--gear 4 --benchmark turbo.pow --average -> 0 Your Power (516.9 hp @ 6278 rpm, Vmax 198.8 mph) Your Torque (437.4 lbft @ 5995 rpm) Benchmark Power (382.5 hp @ 6278 rpm, Vmax 179.8 mph) Benchmark Torque (324.4 lbft @ 5899 rpm) 600 [2.538900000000581,52.41097995101625]
)");
}

TEST(PowerCommand, WhatCannotBeDoneIsTold) {
  ExpectRuns(R"(
power turbo.txt --json --from 4357 --to 4389 --gear 3, names -> 0 series x_axis y_axis marks peaks speed messages
power turbo.txt --json --find-runs, /runs/0 -> 0 {"from":3490,"to":3562,"from_rpm":3345.0,"to_rpm":6825.0,"seconds":5.8982}
power turbo.txt --json --car Nobody's -> 1; tarnview-cli: there is no car definition "Nobody's"
power turbo.txt --json --car-file none.car -> 1; message 57: Problem loading car definition file.
power turbo.txt --json --benchmark none.pow, /messages/1/id -> 1 0; message 33: Problem loading power graph benchmark.
power turbo.txt --json --from 4357 --to 4360 -> 1; message 26: You can't display less than 10 samples on a Power Graph.
power turbo.txt --json --gear 7 -> 2; --gear: Value 7 not in range 1 to 6
power turbo.txt --json --units furlong -> 2; --units: furlong not in {imperial,metric}
power turbo.txt --json --sae 20 100 damp -> 2; --sae: the air is TEMPERATURE PRESSURE HUMIDITY, the last as 50 or wet:15
power turbo.txt --json --average -> 2; --average requires --benchmark
power turbo.txt --json --car A --car-file B -> 2; --car excludes --car-file
power turbo.txt --json --out a.gif -> 2; --out: a picture's name ends in .png, .svg or .pdf
power turbo.txt --from 4357 --to 4389 -> 2; power: needs --out, --save, --json or --find-runs
)");
}

TEST(PowerCommand, ACarOfAFileJoinsThoseOfTheSettings) {
  const ScratchFolder folder;
  folder.Put("light.car", "Car Definition Details:\nName=Light\nCar Weight=1200\n");
  const std::string log = " " TARNVIEW_EXAMPLES "/turbo.txt --json --from 4357 --to 4389 --gear 3";
  ExpectTable(
      [&](const TableRow& row) {
        return RunCli("power" + log + row.All(), folder.path.string()).Told("/series/0/name");
      },
      R"(
 -> 0 Your Power (382.5 hp @ 6278 rpm, Vmax 179.9 mph)
 --car-file light.car -> 0 Your Power (223.9 hp @ 6278 rpm, Vmax 150.5 mph)
)");
}

}  // namespace
}  // namespace tarnview
