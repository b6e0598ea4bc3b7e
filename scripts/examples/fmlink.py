"""Writes an FM Link log: lines of samples and of summaries in fixed columns, then the zones and what changed in them."""

LINE_END = "\r\n"
SAMPLES_PER_SUMMARY = 16

# Name, position (from 1) and length of each field.
SAMPLE_LINE = (
    ("number", 1, 6), ("cam error", 8, 1), ("rpm", 9, 4), ("rev limit", 13, 1), ("dwell", 14, 1), ("map", 16, 3),
    ("map limit", 19, 1), ("lambda", 20, 1), ("o2", 22, 3), ("affector", 25, 1), ("wastegate mode", 27, 1),
    ("wastegate or egr", 28, 3), ("fuel pump", 32, 1), ("injector", 33, 4), ("duty", 38, 3), ("throttle", 43, 1),
    ("iac or tps", 44, 3), ("neutral", 48, 1), ("clutch", 49, 1), ("knock", 50, 3), ("knock event", 53, 1),
    ("advance", 54, 4), ("aux fast", 60, 4))
SUMMARY_LINE = (
    ("tag", 1, 1), ("version", 2, 4), ("volt", 9, 4), ("volt unit", 13, 1), ("coolant name", 15, 2),
    ("coolant", 17, 3), ("air name", 21, 2), ("air", 24, 3), ("fan", 29, 2), ("condenser", 32, 2), ("a/c", 35, 2),
    ("prc", 38, 2), ("purge", 41, 2), ("knock name", 47, 2), ("knock count", 50, 3))
# The end of a summary: with an L4 adjustment, or with the voltage of the aux input.
L4_TAIL = (("l4", 54, 1), ("speed name", 56, 2), ("speed", 58, 3))
AUX_TAIL = (("speed name", 54, 2), ("speed", 56, 3), ("aux", 60, 4), ("aux unit", 64, 1))

SAMPLE_HEADING = "Sample  RPM  D MAP L O2  WG/EGR PInj  Dty  TIAC   nc Kn  IAdv"
CELLS = 16
ROW_LENGTH = 4 * CELLS


def line(fields, **values):
    """A line with each value at its field's place: numbers to the right, the sample's number to the left."""
    text = [" "] * 80
    end = 0
    for name, at, length in fields:
        value = str(values.get(name.replace(" ", "_").replace("/", "_"), ""))
        assert len(value) <= length, (name, value)
        assert text[at - 1:at - 1 + length] == [" "] * length, name
        text[at - 1:at - 1 + length] = value.ljust(length) if name == "number" else value.rjust(length)
        if value:
            end = max(end, at - 1 + length)
    return "".join(text[:end])


def lambda_character(drive, mixture, modern):
    """What the tuning did: + and - on old ECUs, a digit (5 is no change) or, at idle, a letter on later ones."""
    if drive.since_start < 25 or drive.coolant < 55:
        return "?" if drive.since_start < 25 else "T"
    if drive.throttle == 0 and drive.gear > 0:
        return "D"
    if modern:
        step = round((mixture - 14.7) * 1.5) if drive.pressure < 90 else 0
        return chr(ord("m") + 2 * max(-3, min(3, step))) if drive.gear == 0 else str(5 + max(-3, min(3, step)))
    if drive.pressure > 85:
        return "X"
    return "+" if mixture > 14.85 else "-" if mixture < 14.55 else "="


def wastegate(drive):
    """Mode and percent: shut while boost builds, then held near the target."""
    building = drive.throttle > 0.9 and drive.charge < 0.8 * drive.car.boost
    return ("c", 0) if building else ("", round(48 - drive.rpm / 400) if drive.pressure > 125 else 0)


def egr(drive):
    """Percent: open at part load when warm."""
    warm_cruise = drive.coolant > 65 and drive.gear > 2 and 0.02 < drive.throttle < 0.5
    return round(55 * drive.throttle + 8) if warm_cruise else 0


def aux_volts(mixture):
    """A wide band controller: 0 V at 8.5, 5 V at 19.4, straight between but for the ends."""
    return min(4.95, max(0.0, (mixture - 8.4) * 0.66 if mixture < 14.7 else 4.16 + (mixture - 14.7) * 0.18))


def sample_line(number, drive):
    turbo = drive.car.turbo
    mixture = drive.mixture()
    idle = drive.throttle == 0
    width, running = drive.width(), drive.since_start >= 0
    noise, event = drive.knock()
    mode, percent = wastegate(drive) if turbo else ("", egr(drive))
    return line(
        SAMPLE_LINE, number=number, cam_error="*" if not running and number % 17 == 0 else "",
        rpm=round(drive.rpm), rev_limit="!" if running and drive.limited else "",
        dwell="L" if not running else "S" if drive.rpm > 6000 else "", map=round(drive.pressure),
        map_limit="!" if drive.pressure >= drive.car.map.zones[3] else "",
        **{"lambda": lambda_character(drive, mixture, turbo)}, o2=round(drive.sensor(mixture)),
        affector="a" if drive.throttle > 0.95 and drive.pressure < 80 else "d" if drive.fuel_cut() else "",
        wastegate_mode=mode, wastegate_or_egr=percent, fuel_pump="x" if not running and drive.rpm == 0 else "",
        injector=round(width * 125), duty=round(width * drive.rpm / 1200),  # one opening in two turns
        throttle="*" if idle else "w" if drive.throttle > 0.9 else "",
        iac_or_tps=round(drive.iac) if idle or not turbo else max(1, round(100 * drive.throttle)),
        neutral="n" if drive.gear == 0 else "", clutch="c" if drive.ac and drive.throttle < 0.8 else "",
        knock=noise, knock_event="!" if event else "", advance=f"{drive.advance():.1f}",
        aux_fast=f"{aux_volts(mixture):.2f}" if turbo else "")


def summary_line(drive):
    speed, turbo = round(drive.speed * 3.6), drive.car.turbo
    tail = AUX_TAIL if turbo else L4_TAIL
    cruising = drive.coolant > 70 and drive.speed > 10
    return line(
        SUMMARY_LINE + tail, tag="*" if drive.tag else "", version="1.8b" if turbo else "1.x ",
        volt=f"{drive.volts():.1f}", volt_unit="V", coolant_name="CT", coolant=round(drive.coolant),
        air_name="AT", air=round(drive.air), fan="EF" if drive.fan else "", condenser="CF" if drive.ac else "",
        a_c="AC" if drive.ac else "", prc="PR" if 0 <= drive.since_start < 90 else "",
        purge="CP" if cruising and drive.throttle > 0 else "", knock_name="KC", knock_count=drive.knock_count,
        l4=0, speed_name="S=", speed=speed, aux=f"{aux_volts(drive.mixture()):.2f}", aux_unit="v")


def zone_rows(cells, start):
    """Rows of 16 cells from zone `start`; a cell is a blank and three characters."""
    return ["".join(f" {cell:>3}" for cell in cells[at:at + CELLS]) for at in range(start, start + 96, CELLS)]


def zone_section(cells):
    """All zones in the order and with the headings of the log."""
    assert len(cells) == 256
    columns = "".join(f"  {5 * c:02}" for c in range(CELLS))
    rows = {start: zone_rows(cells, start) for start in (0, 16, 32, 128, 224, 240)}
    section = [" ATM" + rows[0][0], "", "General zones 16 to 31", rows[16][0], "Fuel" + columns, *rows[32],
               "", "", "Ignition" + columns, *rows[128], "", "Zones 700 and 800", rows[224][0], rows[240][0]]
    assert all(len(row) == ROW_LENGTH for row in rows[32] + rows[128] + rows[240][:1])
    return section


def write(path, drives, zones, settings_line, changes):
    """The whole log; `changes` maps zones to what they became during the drive, None where tuning was off."""
    lines = [SAMPLE_HEADING]
    for number, drive in enumerate(drives, 1):
        lines.append(sample_line(number, drive))
        if number % SAMPLES_PER_SUMMARY == 0:
            lines.append(summary_line(drive))
    lines += ["Initial zone map", "", *zone_section([str(zone) for zone in zones]), "", settings_line, ""]
    if changes is None:
        lines.append("No lambda/knock zone changes")
    else:
        lines += ["Lambda/knock zone changes", "", *zone_section([str(changes.get(i, "*")) for i in range(256)])]
    with open(path, "w", encoding="ascii", newline="") as log:
        log.writelines(text.rstrip(" ") + LINE_END if len(text) != ROW_LENGTH else text + LINE_END for text in lines)
    return lines
