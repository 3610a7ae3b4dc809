// The limits of the arithmetic: where one is passed a fault is thrown whose sentence names the analysis and the limit.
#pragma once

#include <cstdint>
#include <string_view>

namespace zelko::numbers {

// The sentence of the fault that ends an analysis: its name, what happened.
[[noreturn]] void stop(std::u16string_view analysis, std::u16string_view what);

// A subscript fault where count is above limit: "クラスタ分析、記録は200までです。…".
void requireAtMost(std::size_t count, std::size_t limit, std::u16string_view analysis, std::u16string_view what);

// a / b; a division fault where b is 0 or no number.
double divided(double a, double b, std::u16string_view analysis);

// The square root; a fault below 0.
double root(double x, std::u16string_view analysis);

// x as a single; an overflow fault where it does not fit.
float single(double x, std::u16string_view analysis);

// Rounded half to even; an overflow fault where the value does not fit.
std::int16_t whole16(double x, std::u16string_view analysis);
std::int32_t whole32(double x, std::u16string_view analysis);

}  // namespace zelko::numbers
