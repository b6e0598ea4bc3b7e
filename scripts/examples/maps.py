"""The calibrations of the two example cars: fuel and ignition grids, and the other zones around them.

A grid has 6 rows by manifold pressure and 16 columns of 500 RPM. A fuel cell is the engine's breathing, 128 being a
full cylinder; an ignition cell is degrees before top dead centre.
"""

from bisect import bisect_right
from dataclasses import dataclass

NA_ROWS = (30, 44, 57, 70, 84, 96)  # kPa
TURBO_ROWS = (20, 60, 100, 140, 180, 220)

# Breathing of the engine at wide open throttle, and the advance that it likes there: at 0, 1000, ... 7500 RPM.
SPEEDS = (0, 1000, 2000, 3000, 4000, 5000, 6000, 7000, 7500)
BREATHING = (0.62, 0.70, 0.80, 0.88, 0.95, 1.00, 0.97, 0.88, 0.80)
NA_ADVANCE = (8, 10, 18, 23, 26, 28, 30, 31, 31)


def interpolate(x, xs, ys):
    """The value at x between the points (xs, ys), held at the ends."""
    if x <= xs[0]:
        return ys[0]
    if x >= xs[-1]:
        return ys[-1]
    i = bisect_right(xs, x) - 1
    return ys[i] + (ys[i + 1] - ys[i]) * (x - xs[i]) / (xs[i + 1] - xs[i])


def breathing(rpm):
    return interpolate(rpm, SPEEDS, BREATHING)


@dataclass(frozen=True)
class Map:
    """What an ECU holds: 256 zones, whose grids give fuel and ignition."""
    zones: tuple
    rows: tuple

    def cell(self, grid, rpm, kpa):
        """Between the four cells around an engine speed and a pressure; grid 0 is fuel, 1 is ignition."""
        columns = range(0, 8000, 500)
        base = 32 + 96 * grid
        by_row = [interpolate(rpm, columns, self.zones[base + 16 * r:base + 16 * r + 16]) for r in range(6)]
        return interpolate(kpa, self.rows, by_row)


def _fuel_grid(rows, full_load):
    grid = []
    for kpa in rows:
        load = min(kpa / full_load, 1.0)
        rich = 0.90 + 0.14 * load  # lean at part load, rich at full load
        grid += [round(128 * breathing(500 * c) * rich * (0.92 + 0.08 * load)) for c in range(16)]
    return grid


def _ignition_grid(rows):
    grid = []
    for kpa in rows:
        for c in range(16):
            part_load = 0.22 * max(0, 100 - kpa) * min(1.0, 500 * c / 2500)
            boosted = 0.155 * max(0, kpa - 100)  # degrees taken away for each kPa of boost
            grid.append(max(4, min(44, round(interpolate(500 * c, SPEEDS, NA_ADVANCE) + part_load - boosted))))
    return grid


def _zones(general, rows, full_load, boost_control, last_rows):
    zones = general + _fuel_grid(rows, full_load) + _ignition_grid(rows) + last_rows
    for zone, value in boost_control.items():
        zones[zone] = value
    assert len(zones) == 256 and all(0 <= value <= 255 for value in zones)
    return tuple(zones)


# z0 to z31: overrun MAP, master fuel, rev limit, MAP limit, intake limit, flags, choke, correction, target RPM, fan,
# TPS offset and scale, sensitivity, knock threshold, base pressure, RPM; cold fuel, hot restart, IAC run and start,
# A/C idle, trim, four fuel bands, six targets.
NA_GENERAL = [25, 62, 72, 255, 50, 1, 60, 118, 17, 95, 0, 128, 24, 44, 30, 46,
              92, 40, 34, 58, 6, 22, 10, 14, 18, 20, 83, 83, 84, 87, 90, 91]
TURBO_GENERAL = [22, 78, 70, 190, 55, 1 + 2 + 16 + 128, 64, 120, 18, 96, 250, 132, 28, 48, 30, 50,
                 96, 96, 36, 60, 7, 20, 12, 16, 20, 22, 24, 24, 27, 40, 52, 57]
# z700 to z775, then z800 to z875.
NA_LAST = [4, 197, 40, 70, 101] + [100] * 11 + [2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 24, 0, 0, 45, 0]
TURBO_LAST = ([5, 115, 44, 84, 100] + [130, 150, 165, 168, 168, 168, 168, 166, 164, 160, 155] +
              [4 + 2, 0, 0, 96, 0, 20, 6, 12, 5, 24, 30, 28, 40, 32, 45, 64])

NA = Map(_zones(NA_GENERAL, NA_ROWS, 96, {}, NA_LAST), NA_ROWS)
TURBO = Map(_zones(TURBO_GENERAL, TURBO_ROWS, 180, {112: 12, 113: 9, 208: 40, 209: 24}, TURBO_LAST), TURBO_ROWS)
