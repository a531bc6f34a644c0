"""Shapes as lists of polygons: pen strokes, curves, ellipses, and their union and difference.

A polygon is a list of (x, y) pairs. Angles are degrees, counter-clockwise with y up.
"""

import math

import pyclipper

CLIPPER_UNIT = 1 << 16      # clipper works on whole numbers: this many to a drawing unit
CURVE_STEPS = 24            # polygon sides for one curve of an outline
ROUND_STEPS = 16            # polygon sides for a half circle
SPAN_STEPS = 12             # samples between two nodes of a stroke


def union(*groups):
    """The polygons of all groups as one non-overlapping shape."""
    return _clip(pyclipper.CT_UNION, [p for group in groups for p in group], [])


def difference(ink, holes):
    """What is left of ink when holes are taken away."""
    return _clip(pyclipper.CT_DIFFERENCE, ink, holes)


def _clip(operation, subject, other):
    clipper = pyclipper.Pyclipper()
    for polygons, role in ((subject, pyclipper.PT_SUBJECT), (other, pyclipper.PT_CLIP)):
        for polygon in polygons:
            try:
                clipper.AddPath(_to_clipper(polygon), role, True)
            except pyclipper.ClipperException:
                continue    # a polygon without an area
    solution = clipper.Execute(operation, pyclipper.PFT_NONZERO, pyclipper.PFT_NONZERO)
    return _from_clipper(solution)


def grown(ink, amount):
    """The ink with its edges moved outwards by amount, corners rounded."""
    offset = pyclipper.PyclipperOffset(arc_tolerance=CLIPPER_UNIT / 100)
    offset.AddPaths([_to_clipper(polygon) for polygon in ink],
                    pyclipper.JT_ROUND, pyclipper.ET_CLOSEDPOLYGON)
    return _from_clipper(offset.Execute(amount * CLIPPER_UNIT))


def _to_clipper(polygon):
    return [(round(x * CLIPPER_UNIT), round(y * CLIPPER_UNIT)) for x, y in polygon]


def _from_clipper(polygons):
    return [[(x / CLIPPER_UNIT, y / CLIPPER_UNIT) for x, y in polygon] for polygon in polygons]


def bounds(polygons):
    """The box (left, bottom, right, top) round all points."""
    xs = [x for polygon in polygons for x, _ in polygon]
    ys = [y for polygon in polygons for _, y in polygon]
    return min(xs), min(ys), max(xs), max(ys)


def area(polygon):
    """Signed area, positive for a counter-clockwise polygon."""
    return 0.5 * sum(x1 * y2 - x2 * y1
                     for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]))


def placed(polygons, dx=0.0, dy=0.0, sx=1.0, sy=None, angle=0.0):
    """The polygons scaled, then turned, then moved; a mirrored polygon keeps its direction."""
    sy = sx if sy is None else sy
    cos, sin = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    result = []
    for polygon in polygons:
        moved = [(dx + sx * x * cos - sy * y * sin, dy + sx * x * sin + sy * y * cos)
                 for x, y in polygon]
        result.append(moved[::-1] if sx * sy < 0 else moved)
    return result


def box(left, bottom, right, top):
    """An upright rectangle."""
    return [(left, bottom), (right, bottom), (right, top), (left, top)]


def ellipse(cx, cy, rx, ry=None, tilt=0.0):
    """An ellipse, its first axis turned by tilt; a circle if there is but one radius."""
    ry = rx if ry is None else ry
    cos, sin = math.cos(math.radians(tilt)), math.sin(math.radians(tilt))
    points = []
    for step in range(4 * ROUND_STEPS):
        turn = math.pi * step / (2 * ROUND_STEPS)
        u, v = rx * math.cos(turn), ry * math.sin(turn)
        points.append((cx + u * cos - v * sin, cy + u * sin + v * cos))
    return points


def path(rows):
    """A closed outline: a row of two numbers is a straight line to that point, a row of six a
    cubic curve (two handles, then the end)."""
    points = [tuple(rows[0][-2:])]
    for row in rows[1:]:
        if len(row) == 2:
            points.append(tuple(row))
        else:
            points += _cubic(points[-1], row[0:2], row[2:4], row[4:6])
    return _counter_clockwise(points)


def _cubic(start, first, second, end):
    points = []
    for step in range(1, CURVE_STEPS + 1):
        t = step / CURVE_STEPS
        weights = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3)
        points.append(tuple(sum(w * p[axis] for w, p in zip(weights, (start, first, second, end)))
                            for axis in (0, 1)))
    return points


def _counter_clockwise(polygon):
    return polygon if area(polygon) >= 0 else polygon[::-1]


def stroke(nodes, butt=False):
    """The ink of a pen led through nodes (x, y, width): a smooth line, its two edges half a width
    away on either side, with round ends unless butt. Given as one polygon for every short step of
    the pen, so that a sharp turn, where the edges cross, cannot punch a hole."""
    line = _smooth(nodes)
    edges = []
    for index, (x, y, width) in enumerate(line):
        before, after = line[max(index - 1, 0)], line[min(index + 1, len(line) - 1)]
        dx, dy = after[0] - before[0], after[1] - before[1]
        scale = 0.5 * width / math.hypot(dx, dy)
        edges.append(((x - dy * scale, y + dx * scale), (x + dy * scale, y - dx * scale)))
    steps = [_counter_clockwise([left, right, next_right, next_left])
             for (left, right), (next_left, next_right) in zip(edges, edges[1:])]
    if not butt:
        steps += [ellipse(x, y, width / 2) for x, y, width in (line[0], line[-1])]
    return steps


def _smooth(nodes):
    """Samples of the natural cubic spline through the nodes, chord lengths as parameter; widths
    follow a monotone curve so that they never swing below the narrowest node."""
    if len(nodes) == 2:
        return [tuple(node) for node in nodes]
    knots = [0.0]
    for first, second in zip(nodes, nodes[1:]):
        knots.append(knots[-1] + math.dist(first[:2], second[:2]) ** 0.75)
    slopes = [_spline_slopes(knots, [node[axis] for node in nodes]) for axis in (0, 1)]
    slopes.append(_monotone_slopes(knots, [node[2] for node in nodes]))
    samples = [tuple(nodes[0])]
    for index in range(len(nodes) - 1):
        for step in range(1, SPAN_STEPS + 1):
            samples.append(tuple(
                _hermite(knots[index], knots[index + 1], nodes[index][axis], nodes[index + 1][axis],
                         slopes[axis][index], slopes[axis][index + 1], step / SPAN_STEPS)
                for axis in (0, 1, 2)))
    return samples


def _hermite(start, end, first, second, slope1, slope2, t):
    span = end - start
    return ((2 * t ** 3 - 3 * t * t + 1) * first + (t ** 3 - 2 * t * t + t) * span * slope1
            + (3 * t * t - 2 * t ** 3) * second + (t ** 3 - t * t) * span * slope2)


def _spline_slopes(knots, values):
    """Slopes at the knots of the natural cubic spline (its second derivative is continuous and
    zero at both ends), by the usual elimination of a tridiagonal system."""
    count = len(knots)
    rates = [(values[i + 1] - values[i]) / (knots[i + 1] - knots[i]) for i in range(count - 1)]
    diagonal, above, right = [2.0], [1.0], [3 * rates[0]]
    for i in range(1, count):
        if i < count - 1:
            before, after = knots[i] - knots[i - 1], knots[i + 1] - knots[i]
            row = (1 / before, 2 / before + 2 / after, 1 / after)
            value = 3 * (rates[i - 1] / before + rates[i] / after)
        else:
            row, value = (1.0, 2.0, 0.0), 3 * rates[-1]
        factor = row[0] / diagonal[-1]
        diagonal.append(row[1] - factor * above[-1])
        right.append(value - factor * right[-1])
        above.append(row[2])
    slopes = [right[-1] / diagonal[-1]]
    for i in range(count - 2, -1, -1):
        slopes.append((right[i] - above[i] * slopes[-1]) / diagonal[i])
    return slopes[::-1]


def _monotone_slopes(knots, values):
    """Slopes that let no value between two knots leave the range of the two."""
    rates = [(b - a) / (t - s) for a, b, s, t in zip(values, values[1:], knots, knots[1:])]
    slopes = [rates[0]]
    for first, second in zip(rates, rates[1:]):
        slopes.append(0.0 if first * second <= 0 else 2 * first * second / (first + second))
    slopes.append(rates[-1])
    return slopes


def simplified(polygon, tolerance):
    """The polygon without the points that lie within tolerance of the line past them."""
    far = max(range(len(polygon)), key=lambda i: math.dist(polygon[0], polygon[i]))
    ring = polygon[far:] + polygon[:far + 1]
    middle = len(polygon) - far
    return _thinned(ring[:middle + 1], tolerance)[:-1] + _thinned(ring[middle:], tolerance)[:-1]


def _thinned(points, tolerance):
    """An open line without needless points; both ends stay."""
    if len(points) < 3:
        return points
    first, last = points[0], points[-1]
    gaps = [_distance(point, first, last) for point in points[1:-1]]
    widest = max(range(len(gaps)), key=gaps.__getitem__)
    if gaps[widest] <= tolerance:
        return [first, last]
    return (_thinned(points[:widest + 2], tolerance)[:-1]
            + _thinned(points[widest + 1:], tolerance))


def _distance(point, first, last):
    """How far a point lies from the line through two others."""
    dx, dy = last[0] - first[0], last[1] - first[1]
    length = math.hypot(dx, dy)
    if length == 0:
        return math.dist(point, first)
    return abs(dx * (point[1] - first[1]) - dy * (point[0] - first[0])) / length
