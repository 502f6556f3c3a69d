# Shared helpers of the worked-value scripts: the program's Pi and the
# direction and normalisation as the classic code computes them.
import math
PI = 3.141592654
GROSS = 1e36

def richtung(y, x):
    if y != 0:
        if x == 0: return PI/2 if y > 0 else -PI/2
        if math.isinf(y/x): return 0.0  # the overflowing division fails: 0
        if x > 0: return math.atan(y/x)
        return math.atan(y/x) - PI if y < 0 else math.atan(y/x) + PI
    return PI if x < 0 else 0.0

def norm(w):
    t = w / 2 / PI
    return (t - math.floor(t)) * 2 * PI

def asin_(x):
    if abs(x) == 1: return math.copysign(PI/2, x)
    if abs(x) > 1: return 0.0
    return math.atan(x / math.sqrt(1 - x*x))

def acos_(x):
    if x == 0 or abs(x) > 1: return 0.0
    q = math.sqrt(1 - x*x) / x
    if math.isinf(q): return 0.0  # the overflowing division fails: 0
    return math.atan(q)
