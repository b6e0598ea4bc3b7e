"""A small car on an invented road: what an ECU would see, sample by sample, from a cold start to a hot idle.

Nothing here was measured. The formulas are the simplest that keep the quantities in step with each other: speed, gear
and RPM, throttle, pressure and fuel, mixture and sensor, load and knock, heat and fans.
"""

import random
from dataclasses import dataclass
from math import pi, sqrt

import maps

SAMPLE_SECONDS = 0.08192  # the time between two lines of a log
STEPS = 4  # of the model in each sample
STEP = SAMPLE_SECONDS / STEPS

GEARS = (0, 3.136, 1.888, 1.330, 1.000, 0.814)
FINAL_DRIVE = 4.1
WHEEL_RADIUS = 0.289  # m
INERTIA = 0.16  # kg m2, engine and flywheel
AIR = 1.2 * 0.65 / 2  # kg/m, air density times drag area, halved
ROLLING = 0.014
GRAVITY = 9.81  # m/s2
OVERRUN_RPM = 1500  # fuel is cut above it with the throttle closed


@dataclass(frozen=True)
class Car:
    map: maps.Map
    seed: int
    mass: float  # kg, with driver
    torque: float  # Nm at best breathing and 100 kPa, before friction
    atmosphere: float  # kPa
    boost: float  # kPa above atmosphere that the wastegate holds; 0 without a turbo
    injector: float  # ms for a full cylinder at 100 kPa
    ambient: float  # degrees C
    full_mixture: float  # air/fuel ratio at full load
    knocks: tuple  # (number of the pull, RPM) at which the engine knocks
    road: tuple

    @property
    def turbo(self):
        return self.boost > 0


# The road, as legs: ("key", s) ignition on; ("crank", s); ("idle", s); ("hold", km/h, s); ("pull", gear, from, to RPM);
# ("overrun", km/h), foot off in gear until that speed; ("stop",). A leg with "tag" is one that the driver marks.
NA_ROAD = (
    ("key", 2.2), ("crank", 1.3), ("idle", 34), ("hold", 32, 22), ("stop",), ("idle", 12), ("hold", 52, 60),
    ("hold", 64, 30), ("stop",), ("idle", 20, "A/C"), ("hold", 80, 62, "A/C"), ("overrun", 62),
    ("pull", 3, 2300, 6900, "tag"), ("overrun", 78), ("hold", 82, 38), ("hold", 58, 12),
    ("pull", 2, 2500, 7000, "tag"), ("pull", 3, 4600, 6400, "tag"), ("overrun", 84), ("hold", 96, 54),
    ("hold", 74, 14), ("pull", 4, 2200, 5600, "tag"), ("overrun", 60), ("hold", 50, 26), ("stop",), ("idle", 60))
TURBO_ROAD = (
    ("key", 1.8), ("crank", 1.0), ("idle", 42), ("hold", 30, 26), ("stop",), ("idle", 9), ("hold", 56, 66),
    ("hold", 70, 34), ("stop",), ("idle", 16, "A/C"), ("hold", 88, 70, "A/C"), ("overrun", 66),
    ("pull", 3, 2000, 6800, "tag"), ("overrun", 90), ("hold", 90, 42), ("hold", 60, 14),
    ("pull", 2, 2400, 7300, "tag"), ("pull", 3, 4700, 6600, "tag"), ("overrun", 92), ("hold", 100, 58),
    ("hold", 78, 14), ("pull", 4, 2100, 5900, "tag"), ("overrun", 64), ("hold", 48, 28), ("stop",), ("idle", 66))

NA = Car(maps.NA, 1990, 1060, 168, 101, 0, 12.4, 12, 12.7, ((2, 5300), (3, 4300)), NA_ROAD)
TURBO = Car(maps.TURBO, 1996, 1130, 186, 100, 66, 7.4, 9, 11.7, ((1, 5200), (3, 3900)), TURBO_ROAD)

# Air/fuel ratio and what a narrow band sensor makes of it: steepest where the mixture turns lean.
RATIOS = (10.9, 11.5, 12.0, 12.5, 13.0, 13.5, 14.0, 14.5, 14.7, 14.8, 15.2, 16.5, 20.0)
SENSOR = (107, 102, 100, 96, 91, 88, 86, 84, 82, 78, 70, 40, 12)


class Drive:
    """The car under way; `samples` walks the road."""

    def __init__(self, car):
        self.car = car
        self.noise = random.Random(car.seed)
        self.rpm = self.speed = self.throttle = 0.0  # speed in m/s, throttle 0 to 1
        self.pressure = car.atmosphere
        self.charge = 0.0  # boost in the intake, kPa
        self.coolant = self.air = car.ambient
        self.iac = 55.0
        self.gear = self.shift = 0  # shift: steps until the clutch is closed
        self.since_start = -1.0  # seconds; negative before the engine runs
        self.since_knock = 99.0
        self.knock_count = self.pulls = 0
        self.fan = self.brake = self.ac = self.tag = self.limited = False
        self.swing = 0.4  # of the mixture in closed loop

    def jitter(self, size):
        return size * (2 * self.noise.random() - 1)

    # The driver.

    def samples(self):
        for leg in self.car.road:
            self.tag, self.ac = "tag" in leg, "A/C" in leg
            self.pulls += leg[0] == "pull"
            self.knocked = False
            for _ in getattr(self, leg[0])(*[part for part in leg[1:] if not isinstance(part, str)]):
                for _ in range(STEPS):
                    self.step(leg[0])
                yield self

    @staticmethod
    def lasting(seconds):
        return range(round(seconds / SAMPLE_SECONDS))

    def key(self, seconds):
        yield from self.lasting(seconds)

    def crank(self, seconds):
        yield from self.lasting(seconds)
        self.since_start = 0.0
        self.rpm = 900

    def idle(self, seconds):
        self.gear, self.throttle, self.brake = 0, 0.0, 0
        yield from self.lasting(seconds)

    def hold(self, kmh, seconds):
        wish = kmh / 3.6
        for _ in self.lasting(seconds):
            self.choose_gear(wish)
            error = wish - self.speed
            self.throttle = min(max(0.085 + 0.0024 * self.speed + 0.06 * error, 0.0), 0.24)
            self.brake = 1.6 if error < -2.5 else 0.0
            yield
        self.brake = 0.0

    def pull(self, gear, start, end):
        self.change(gear)
        while self.shift:
            yield
        while self.rpm < start:  # roll up to where the pull begins
            self.throttle = 0.16
            yield
        while self.rpm < end and not self.limited:
            self.throttle = min(1.0, self.throttle + 0.4)
            yield
        if self.limited:  # the driver is late
            yield from range(4)
        self.tag = False

    def overrun(self, kmh):
        while self.speed > kmh / 3.6:
            self.throttle, self.brake = 0.0, 0.5
            yield
        self.brake = 0.0

    def stop(self):
        while self.speed > 0.2:
            self.throttle, self.brake = 0.0, 1.9
            if self.speed < 4:
                self.gear = 0
            yield
        self.speed, self.brake, self.gear = 0.0, 0.0, 0

    def choose_gear(self, wish):
        limit_up = 2900 if abs(wish - self.speed) > 3 else 2500
        if self.gear == 0:
            self.gear = 1
        elif self.shift == 0 and self.rpm > limit_up and self.gear < 5:
            self.change(self.gear + 1)
        elif self.shift == 0 and self.rpm < 1350 and self.gear > 1:
            self.change(self.gear - 1)

    def change(self, gear):
        if gear != self.gear:
            self.gear, self.shift = gear, round(0.5 / STEP)

    # The car.

    def step(self, leg):
        wheel_rpm = self.speed / (2 * pi * WHEEL_RADIUS) * 60 * GEARS[self.gear] * FINAL_DRIVE
        if self.since_start < 0:
            self.rpm = 215 + self.jitter(30) if leg == "crank" else 0.0
            return
        self.since_start += STEP
        self.since_knock += STEP
        if self.shift:
            self.shift -= 1
            self.throttle = 0.0
        self.breathe()
        torque = self.engine_torque()
        push = -self.brake if self.speed > 0 else 0.0
        if self.gear == 0:
            self.spin(torque)
        elif self.shift:
            self.rpm += (wheel_rpm - self.rpm) * 0.12
        else:
            push += self.drive(torque, wheel_rpm)
        drag = AIR * self.speed ** 2 / self.car.mass + (ROLLING * GRAVITY if self.speed > 0.1 else 0)
        self.speed = max(0.0, self.speed + (push - drag) * STEP)
        self.warm(leg)

    def spin(self, torque):
        target = 880 + 9 * max(0.0, 75 - self.coolant) + (60 if self.ac else 0)
        self.iac += (target - self.rpm) * 0.004 * STEP * 10
        self.iac = min(max(self.iac, 14), 85)
        correction = (target - self.rpm) * 0.05  # spark holds the idle still
        self.rpm = max(500.0, self.rpm + (torque + correction + self.jitter(2)) / INERTIA * 60 / (2 * pi) * STEP * 0.35)

    def drive(self, torque, wheel_rpm):
        """Acceleration of the car; pulling away, the clutch slips at 1700 RPM."""
        if wheel_rpm < 1150 and self.gear == 1:
            self.throttle = max(self.throttle, 0.13)
            self.rpm += (1700 - self.rpm) * 0.1
            torque = min(max(torque, 35.0), 70.0)
        else:
            self.rpm += (wheel_rpm - self.rpm) * 0.5
        force = torque * GEARS[self.gear] * FINAL_DRIVE * 0.92 / WHEEL_RADIUS
        return force / (self.car.mass * (1 + 0.05 * GEARS[self.gear] ** 2))

    def breathe(self):
        """Pressure behind the throttle, from its opening against the engine's appetite."""
        car = self.car
        if car.turbo:
            spool = min(max((self.rpm - 1900) / 1500, 0.0), 1.0)
            wish = car.boost * spool * self.throttle ** 2 * (1.0 if self.rpm < 6200 else 1 - (self.rpm - 6200) / 9000)
            self.charge += (wish - self.charge) * STEP / (0.55 if wish > self.charge else 0.18)
        opening = 0.0047 * self.iac + (0.05 if self.ac else 0.0) + 30 * self.throttle ** 1.7
        flow = opening / max(self.rpm / 1000, 0.3)
        wish = 17 + (car.atmosphere + self.charge - 17) * flow / sqrt(1 + flow * flow) + self.jitter(2)
        self.pressure += (wish - self.pressure) * 0.3

    def fuel_cut(self):
        return self.throttle == 0 and self.gear > 0 and not self.shift and self.rpm > OVERRUN_RPM

    def engine_torque(self):
        self.limited = self.rpm >= 100 * self.car.map.zones[2]
        burnt = 0.0 if self.fuel_cut() or self.limited else max(0.0, (self.pressure - 15) / 85)
        friction = 19 + 0.0040 * self.rpm + (6 if self.ac else 0) + 0.10 * max(0.0, 70 - self.coolant)
        return self.car.torque * maps.breathing(self.rpm) * burnt - friction

    def warm(self, leg):
        power = self.rpm * max(0.0, self.pressure - 15) / 1e5  # about 0.2 at idle, 6 at full load
        cooling = (self.coolant - self.car.ambient) * (0.0006 + 0.00013 * self.speed)
        thermostat = min(max((self.coolant - 84) / 6, 0.0), 1.0)
        self.coolant += (0.16 + 0.17 * power - cooling - thermostat * (0.12 + 0.02 * self.speed) * (1 + power / 3) * 0.9
                         - (0.35 if self.fan else 0)) * STEP
        if leg == "idle" and self.coolant > 80:
            self.coolant += 0.17 * STEP
        hot = self.car.map.zones[9]
        self.fan = self.coolant >= hot if not self.fan else self.coolant > hot - 5
        bay = self.car.ambient + 0.38 * (self.coolant - self.car.ambient) / (1 + 0.12 * self.speed)
        self.air += (bay + 0.55 * self.charge - self.air) * STEP / (6 if self.charge > 5 else 35)

    # What the ECU sees.

    def cylinder(self):
        return self.car.map.cell(0, self.rpm, self.pressure) / 128 * self.pressure / 100

    def mixture(self):
        """Air/fuel ratio: rich when cold and at full load, swinging about 14.7 between."""
        if self.fuel_cut():
            return 19.4
        load = self.pressure / self.car.atmosphere
        if load > 0.8:
            full = self.car.full_mixture - (0.5 if self.car.turbo and load > 1.3 else 0.0)
            return 14.2 + (full - 14.2) * min((load - 0.8) / 0.15, 1.0) + self.jitter(0.12)
        if self.coolant < 60:
            return 14.4 - 0.03 * (60 - self.coolant) + self.jitter(0.15)
        if self.noise.random() < 0.22:
            self.swing = -self.swing
        return 14.7 + self.swing + self.jitter(0.1)

    def sensor(self, mixture):
        if self.since_start < 25:  # still cold
            return 44 + self.jitter(3)
        return maps.interpolate(mixture, RATIOS, SENSOR) + self.jitter(1)

    def width(self):
        """Injector opening in ms."""
        if self.since_start < 0:
            return 0.0
        if self.fuel_cut() or self.limited:
            return 0.0
        cold = 1 + 0.006 * max(0.0, 65 - self.coolant)
        rich = 14.7 / self.mixture() if self.pressure > 80 else 1.0
        return 0.9 + self.car.injector * self.cylinder() * cold * rich

    def advance(self):
        if self.since_start < 0:
            return 10.0
        degrees = self.car.map.cell(1, self.rpm, self.pressure) + self.jitter(0.3)
        if self.gear == 0 and self.throttle == 0:
            degrees = 10 + self.jitter(2.5)
        slope, start = self.car.map.zones[255] / 256, self.car.map.zones[254]
        degrees -= max(0.0, self.air - start) * slope
        return max(0.0, degrees - max(0.0, 4 - 1.6 * self.since_knock))

    def knock(self):
        """The sensor's noise, and whether the ECU calls it knock."""
        if self.since_start < 0:
            return 0, False
        noise = 3 + self.rpm / 330 + 0.05 * max(0.0, self.pressure - 60) + abs(self.jitter(3))
        at = dict(self.car.knocks).get(self.pulls)
        if at and not self.knocked and self.throttle > 0.9 and self.rpm > at:
            self.knocked, self.since_knock = True, 0.0
            self.knock_count += 3
        event = self.since_knock < 0.3
        return round(noise + (46 + self.jitter(8) if event else 0)), event

    def volts(self):
        if self.since_start < 0:
            return 12.3 if self.rpm == 0 else 10.3 + self.jitter(0.3)
        loss = 0.35 * self.fan + 0.25 * self.ac
        return 14.2 - loss - 0.35 * max(0.0, 1 - self.rpm / 1100) + self.jitter(0.08)
