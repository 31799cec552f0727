#!/usr/bin/env python3
"""Writes 100,000 decimal operations with their answers, computed by Python's decimal module.

Usage: make_decimal_vectors.py FILE

One operation a line, parted by tabs: operation, scale, first operand, second operand, answer. Operands of
from-double are the 16 hexadecimal digits of the double. The answer is NaN when the exactly rounded result
has no form with at most 38 digits and a scale of 0 to 38. The seed is fixed: the file is always the same.
"""

import random
import struct
import sys
from decimal import ROUND_HALF_EVEN, Context, Decimal, setcontext

COUNT = 100_000
SCALES = (2, 3, 4, 5, 9)
DIGITS = 38
# Quotients of 38-digit numbers stay further from a half than 300 digits can blur.
setcontext(Context(prec=300, rounding=ROUND_HALF_EVEN, Emin=-9999, Emax=9999, traps=[]))
NAN = Decimal("NaN")
source = random.Random(20150131)


def held(value):
    """The value, or NaN when 38 digits and a scale of 0 to 38 cannot hold it."""
    if not value.is_finite():
        return NAN
    if value == 0:
        return Decimal(0)
    _, digits, exponent = value.normalize().as_tuple()
    fits = len(digits) + exponent <= DIGITS if exponent > 0 else exponent >= -DIGITS and len(digits) <= DIGITS
    return value if fits else NAN


def rounded(value, scale):
    if not value.is_finite():
        return NAN
    return held(value.quantize(Decimal(1).scaleb(-scale)))


def text(value):
    if value.is_nan():
        return "NaN"
    plain = format(value, "f")
    if "." in plain:
        plain = plain.rstrip("0").rstrip(".")
    return "0" if plain in ("-0", "") else plain


def sign():
    return source.choice((1, -1))


def number(digits, scale):
    return Decimal(sign() * source.randrange(10**digits)).scaleb(-scale)


def money():
    return number(source.randint(1, 11), 2)


def usual():
    """An operand as the books have it: sums, rates, costs, percentages."""
    return source.choice((money, money, lambda: number(7, 4), lambda: number(14, 9), lambda: number(6, 3),
                          lambda: Decimal(source.randint(-100, 100))))()


def long():
    digits = source.choice((18, 19, 20, 30, 30, 37, 38))
    return number(digits, source.randint(0, min(38, digits + 5)))


def edge():
    return source.choice((
        Decimal(0), NAN, Decimal(10**38 - 1), Decimal(1 - 10**38), Decimal(10**37), Decimal(1).scaleb(-38),
        Decimal(5 * 10**37), Decimal(2**63), Decimal(-(2**63)), Decimal(2**64 - 1), Decimal(2**64),
        Decimal(10**38 - 1).scaleb(-38), Decimal(10**19), Decimal("0.005"), Decimal("-0.5"), Decimal(1)))


def operand():
    return source.choices((usual, long, edge), (6, 3, 1))[0]()


def half(scale):
    """A number that lies exactly between two neighbours with that many digits."""
    return (Decimal(sign() * source.randrange(10**source.choice((1, 3, 9, 25)))) + Decimal("0.5")).scaleb(-scale)


def nudged(value, scale):
    """Now and then a tiny bit beside a half."""
    if source.random() < 0.5:
        return value
    return value + sign() * Decimal(1).scaleb(-scale - source.choice((2, 3, 8)))


def sum_pair(scale):
    if source.random() < 0.3:
        part = operand()
        pair = nudged(half(scale), scale) - part, part
        if all(value == held(value) for value in pair):
            return pair
    return operand(), operand()


def product_pair(scale):
    if source.random() < 0.3:
        shift = source.randint(0, scale)
        odd = Decimal(source.randrange(1, 10**source.choice((2, 6, 16)), 2) * sign())
        return odd.scaleb(-shift), Decimal(5 * sign()).scaleb(shift - scale - 1)
    return operand(), operand()


def quotient_pair(scale):
    if source.random() < 0.3:
        divisor = Decimal(sign() * source.choice((2, 4, 8, 5, 20, 3, 7, 1250, 10**9)))
        value = nudged(half(scale), scale) * divisor
        if value == held(value):
            return value, divisor
    return operand(), operand()


def some_double(scale):
    kind = source.randrange(6)
    if kind == 0:
        return source.randrange(-10**11, 10**11) / 100
    if kind == 1:
        return float(nudged(half(scale), scale))
    if kind == 2:
        return struct.unpack("<d", struct.pack("<Q", source.getrandbits(64)))[0]
    if kind == 3:
        return source.uniform(-1, 1) * 10.0 ** source.randint(-12, 20)
    if kind == 4:
        return sum(source.randrange(10**6) / 100 for _ in range(5)) * sign()
    return source.choice((0.0, -0.0, 1e15, 1e15 - 1, 999999999999999.9, 2.0**53, 2.0**53 + 2, 1e22, 1e23, 1e37,
                          1e38, 1e300, 5e-324, 0.1 + 0.2, 2.345, 2.355, -2.345, 1e-38, 1e-39, float("inf"),
                          float("-inf"), float("nan")))


def from_double(scale):
    value = some_double(scale)
    bits = struct.pack(">d", value).hex()
    exact = Decimal(repr(value))
    if source.random() < 0.3:
        return "exact-double", bits, "", held(exact)
    return "double", bits, "", rounded(exact, scale)


def round_one(scale):
    value = nudged(half(scale), scale) if source.random() < 0.5 else operand()
    value = held(value)
    return "round", text(value), "", rounded(value, scale)


def vector(scale):
    kind = source.randrange(14)
    if kind < 2:
        a, b = sum_pair(scale)
        return "plus", text(a), text(b), rounded(a + b, scale)
    if kind < 4:
        a, b = sum_pair(scale)
        return "minus", text(a), text(-b), rounded(a + b, scale)
    if kind < 7:
        a, b = product_pair(scale)
        return "times", text(a), text(b), rounded(a * b, scale)
    if kind < 10:
        a, b = quotient_pair(scale)
        return "divide", text(a), text(b), NAN if b == 0 else rounded(a / b, scale)
    if kind == 10:
        return round_one(scale)
    if kind == 11:
        a, b = operand(), operand()
        return "exact-plus", text(a), text(b), held(a + b)
    if kind == 12:
        a = operand()
        return "to-double", text(a), "", "NaN" if a.is_nan() else struct.pack(">d", float(a) + 0.0).hex()
    return from_double(scale)


def main():
    with open(sys.argv[1], "w", encoding="ascii") as out:
        for _ in range(COUNT):
            scale = source.choice(SCALES)
            operation, a, b, answer = vector(scale)
            out.write("\t".join((operation, str(scale), a, b, answer if isinstance(answer, str) else text(answer))))
            out.write("\n")


if __name__ == "__main__":
    main()
