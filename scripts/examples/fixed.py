"""Writes small logs of the other engine computers from the invented drives: Tec-2, Tec-3, Link Plus and UTEC."""

LINE_END = "\r\n"

# Heading, position (from 1) and length of each field.
TEC2 = (("SECONDS", 1, 8), ("RPM", 10, 5), ("AD", 16, 2), ("MAP", 19, 5), ("CLT", 25, 3), ("GAMA", 29, 4),
        ("MAT", 34, 3), ("TPS", 38, 4), ("EGO", 43, 5), ("AF", 49, 5), ("EGOV", 55, 5), ("GPO1", 61, 6),
        ("BATT", 68, 5), ("KNK", 74, 5), ("DUTY", 80, 5), ("PW", 86, 5), ("PWOFF", 92, 6))
TEC3 = (("SECONDS", 1, 9), ("RPM", 11, 5), ("AD", 17, 2), ("MAP", 20, 5), ("CLT", 26, 3), ("GAMA", 30, 4),
        ("MAT", 35, 3), ("TPS", 39, 4), ("EGO", 44, 5), ("AF", 50, 5), ("EGOV", 56, 5), ("GPO1", 62, 6),
        ("BATT", 69, 5), ("KNK", 75, 5), ("DUTY", 81, 5), ("PW", 87, 6), ("PWOFF", 94, 6), ("TDUTY", 101, 6),
        ("TPWON", 108, 5), ("TPWOFF", 114, 6), ("AD1", 121, 4), ("AD2", 126, 4), ("AD3", 131, 4), ("AD4", 136, 4),
        ("GPO2", 141, 6), ("GFG", 148, 3), ("SIA", 152, 2), ("KNR", 156, 2), ("IAC", 160, 5))
UTEC_HEADING = " RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF"
UTEC_UNITS = "       PSIG                                                   (OL)      "
UTEC = (("rpm", 2, 4), ("psi", 7, 5), ("maf", 13, 3), ("tps", 17, 3), ("site", 21, 3), ("knock", 27, 3),
        ("ratio", 33, 4), ("advance", 38, 5), ("duty", 45, 5), ("ignition", 51, 5), ("fuel", 57, 5), ("boost", 63, 6),
        ("modified maf", 70, 3))


def line(fields, values, length):
    """A line with each value to the right of its field's place."""
    text = [" "] * length
    for (name, at, width), value in zip(fields, values, strict=True):
        assert len(value) <= width, (name, value)
        text[at - 1:at - 1 + width] = value.rjust(width)
    return "".join(text)


def headings(fields):
    text = ""
    for name, at, _ in fields:
        text = text.ljust(at - 1) + name
    return text


def tec_values(drive, seconds):
    """What both kinds of line carry."""
    mixture, noise = drive.mixture(), drive.knock()[0]
    width = drive.width()
    return [f"{seconds:.2f}", f"{drive.rpm:.0f}", f"{drive.advance():.0f}", f"{drive.pressure:.1f}",
            f"{drive.coolant:.0f}", f"{1 + 0.004 * max(0.0, 70 - drive.coolant):.2f}", f"{drive.air:.0f}",
            f"{min(100 * drive.throttle, 99.9):.1f}", f"{(mixture - 14.7) / 40:.2f}", f"{mixture:.2f}",
            f"{0.9 if mixture < 14.5 else 0.1:.2f}", f"{drive.iac:.2f}", f"{drive.volts():.2f}", f"{noise:.1f}",
            f"{width * drive.rpm / 1200:.1f}", f"{width:.2f}", "0.52"]


def tec2(moments):
    lines = ["Tec-2 data log", headings(TEC2)]
    return lines + [line(TEC2, tec_values(drive, seconds), 98) for seconds, drive in moments]


def tec3(moments):
    lines = ["Tec-3 data log", headings(TEC3)]
    for seconds, drive in moments:
        rest = ["0.00", "0.00", "0.00", f"{drive.volts() / 4:.2f}", "1.22", f"{drive.throttle * 5:.2f}", "0.00",
                "0.00", "0", f"{drive.advance():.0f}", "0", f"{drive.iac:.1f}"]
        lines.append(line(TEC3, tec_values(drive, seconds) + rest, 164))
    return lines


def link_plus(moments):
    lines = ["Link Plus data log", "", "\t".join(
        ("Count", "RPM", "MAP", "TPS", "OXY", "ETEMP", "VOLTS", "%FF", "ADV", "KNK", "IAT", "IDLE", "KPH", "LAMBST",
         "RadFan", "NeutPk", "TPSCls", "Knock"))]
    for number, (_, drive) in enumerate(moments, 1):
        mixture, (noise, event) = drive.mixture(), drive.knock()
        lines.append("\t".join((
            f"{number}", f"{drive.rpm:.0f}", f"{drive.pressure:.1f}", f"{100 * drive.throttle:.1f}",
            f"{drive.sensor(mixture):.0f}", f"{drive.coolant:.0f}", f"{drive.volts():.1f}",
            f"{drive.width() * drive.rpm / 1200:.0f}", f"{drive.advance():.0f}", f"{noise}", f"{drive.air:.1f}",
            f"{drive.iac:.0f}", f"{drive.speed * 3.6:.0f}", "+" if mixture > 14.8 else "-" if mixture < 14.6 else "=",
            "On" if drive.fan else "Off", "On" if drive.gear == 0 else "Off", "Off" if drive.throttle == 0 else "Open",
            "On" if event else "Off")))
    return lines


def utec_values(drive):
    """RPM, psi, MAF V, TPS %, site, knock, ratio, advance, duty, ignition, fuel %, boost duty, modified MAF V."""
    mixture, psi = drive.mixture(), (drive.pressure - drive.car.atmosphere) * 0.14503774
    boosted = psi > 0
    ratio = "LEAN" if mixture > 19 else f"{mixture:.1f}"
    maf = min(99, round(8 + drive.rpm * drive.pressure / 14000))
    return [f"{drive.rpm:.0f}", f"{psi:.1f}", f"{maf}", f"{100 * drive.throttle:.0f}", f"{1 + drive.rpm // 800:.0f}",
            f"{drive.knock_count}", ratio, f"{drive.advance():.1f}", f"{drive.width() * drive.rpm / 1200:.1f}",
            f"{drive.advance() - 2:.1f}" if boosted else "ECU", "-2.5" if boosted else "0.0",
            f"{35 if boosted else 0}.0", f"{maf - 2 if boosted else maf}"]


def utec_fixed(moments):
    return [UTEC_HEADING, UTEC_UNITS] + [line(UTEC, utec_values(drive), 72) for _, drive in moments]


def utec_csv(moments):
    lines = ["TIME,RPM,MAP,MAF,TPS,SITE,COUNT,AFR,IGN#1,INJ#1,IGN,FUEL,BOOST,H2O,AIR", ",,PSIG,,,,,,,,,,(OL),,"]
    for seconds, drive in moments:
        values = [f"{seconds * 2000:.0f}"] + utec_values(drive)[:-1]  # the clock ticks every 500 microseconds
        lines.append(",".join(values + [f"{drive.coolant:.0f}", f"{drive.air:.0f}"]))
    return lines


LOGS = {"tec2.dat": tec2, "tec3.dat": tec3, "linkplus.txt": link_plus, "utec.csv": utec_csv,
        "utec-fixed.txt": utec_fixed}


def write(path, lines):
    with open(path, "w", encoding="ascii", newline="") as log:
        log.writelines(text + LINE_END for text in lines)
