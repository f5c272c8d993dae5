// Sines of many phases, side by side.
#include "engine/kernels/Sines.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SinesKernel Sines;

namespace {

typedef float HalfFloats __attribute__((vector_size(2 * kLanes)));
typedef std::int32_t HalfInts __attribute__((vector_size(2 * kLanes)));

struct Rounded {
    HalfFloats value;
    HalfInts doubtful; // lanes whose value has to be computed otherwise
};

/// Doubles within 1 ± kMargin of a lane's sine enclose that of the library: the error of Compute is below 2^-50 and
/// that of the library below 2^-52. Where they do not all become the same float, one in 2^23, the lane is doubtful.
constexpr double kMargin = 0x1p-48;

/// Sine of 0 < x < 6.5. Cody-Waite reduction in three parts (the products with 0..4 are exact, so that small rests keep
/// their relative accuracy too) and the polynomials that are best for up to pi / 4.
Doubles Compute(Doubles x)
{
    constexpr double kShift = 0x1.8p52; // adding it rounds to a whole number and leaves that in the low bits
    constexpr double kPart1 = 0x1.921fb544p+0, kPart2 = 0x1.0b4611a6p-34, kPart3 = 0x1.3198a2e037073p-69;
    const Doubles shifted = x * (2.0 / std::numbers::pi) + kShift;
    const Longs quadrant = reinterpret_cast<Longs>(shifted);
    const Doubles turns = shifted - kShift;
    const Doubles r = ((x - turns * kPart1) - turns * kPart2) - turns * kPart3;
    const Doubles z = r * r;
    Doubles s = z * 1.58969099521155010221e-10 + -2.50507602534068634195e-08;
    s = s * z + 2.75573137070700676789e-06;
    s = s * z + -1.98412698298579493134e-04;
    s = s * z + 8.33333333332248946124e-03;
    s = s * z + -1.66666666666666324348e-01;
    const Doubles sine = r + r * z * s;
    Doubles c = z * -1.13596475577881948265e-11 + 2.08757232129817482790e-09;
    c = c * z + -2.75573143513906633035e-07;
    c = c * z + 2.48015872894767294178e-05;
    c = c * z + -1.38888888888741095749e-03;
    c = c * z + 4.16666666666666019037e-02;
    const Doubles cosine = (1.0 - 0.5 * z) + z * z * c;
    const Longs odd = -(quadrant & 1);
    const Longs bits = (reinterpret_cast<Longs>(sine) & ~odd) | (reinterpret_cast<Longs>(cosine) & odd);
    return reinterpret_cast<Doubles>(bits ^ ((quadrant & 2) << 62));
}

Rounded Sine(Doubles phase)
{
    const Doubles x = phase * (2.0 * std::numbers::pi);
    const Doubles y = Compute(x);
    const HalfFloats value = __builtin_convertvector(y * (1.0 + kMargin), HalfFloats);
    const HalfFloats other = __builtin_convertvector(y * (1.0 - kMargin), HalfFloats);
    const Longs outside = ~((x > 0.0) & (x < 6.5));
    return {value, (value != other) | __builtin_convertvector(outside, HalfInts)};
}

/// Computes the sines of a vector; whether each is sure.
HalfInts SinesAt(const double* phases, float amount, float* sines)
{
    const Rounded sine = Sine(Load<Doubles>(phases));
    Store(sine.value * amount, sines);
    return sine.doubtful;
}

bool Any(HalfInts mask)
{
    std::int32_t any = 0;
    for (int lane = 0; lane < kDoubles; ++lane) any |= mask[lane];
    return any != 0;
}

/// Few enough that a doubtful sine costs little.
constexpr int kRound = 4 * kLanes;

void SinesOfRound(const double* phases, float amount, float* sines, int count)
{
    HalfInts doubtful{};
    const int last = count - kDoubles; // where the last vector begins; it may overlap the one before
    for (int n = 0; n < last; n += kDoubles) doubtful |= SinesAt(phases + n, amount, sines + n);
    if (last >= 0) doubtful |= SinesAt(phases + last, amount, sines + last);
    if (last >= 0 && !Any(doubtful)) return;
    for (int n = 0; n < count; ++n) sines[n] = SineOf(phases[n]) * amount;
}

} // namespace

void Sines(const double* phases, float amount, float* sines, int count)
{
    for (int from = 0; from < count; from += kRound)
        SinesOfRound(phases + from, amount, sines + from, count - from < kRound ? count - from : kRound);
}

} // namespace korvane::KORVANE_ISA_SPACE
