// Whether a function really is zero where a change of its sign was found.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

namespace quiralto {

// The zero of a function within `margen` of x; none where it only changes its sign there, at a pole
// or a jump, or has no value. `valor` returns the function's value, or none.
template <typename Valor>
std::optional<double> DevCero(const Valor& valor, double x, double margen) {
    double a = x - margen;
    double b = x + margen;
    const std::optional<double> fa = valor(a);
    const std::optional<double> fb = valor(b);
    const double mayor =
        std::max(fa ? std::fabs(*fa) : 0.0, fb ? std::fabs(*fb) : 0.0); // at the ends
    if (!fa || !fb || std::signbit(*fa) == std::signbit(*fb)) {
        // It touches the axis, or ends there.
        const std::optional<double> f = valor(x);
        const bool menor = f && std::fabs(*f) <= std::fabs(fa.value_or(*f)) &&
                           std::fabs(*f) <= std::fabs(fb.value_or(*f));
        return menor ? std::optional(x) : std::nullopt;
    }
    for (;;) {
        const double medio = a / 2 + b / 2;
        if (medio <= a || medio >= b)
            break;
        const std::optional<double> f = valor(medio);
        if (!f)
            return std::nullopt;
        if (*f == 0)
            return medio;
        (std::signbit(*f) == std::signbit(*fa) ? a : b) = medio;
    }
    // Beside a zero it has become small, beside a pole great, and beside a jump it is as it was.
    const std::optional<double> f = valor(a);
    return f && std::fabs(*f) <= mayor / 2 ? std::optional(a) : std::nullopt;
}

// Whether the function has no value at x, or a far greater one than a little way off.
template <typename Valor> bool EsPolo(const Valor& valor, double x, double margen) {
    constexpr double Apartado = 3;
    constexpr double Veces = 4;
    const std::optional<double> f = valor(x);
    if (!f)
        return true;
    double mayor = 0;
    for (const double lado : {-Apartado, Apartado})
        if (const std::optional<double> otro = valor(x + lado * margen))
            mayor = std::max(mayor, std::fabs(*otro));
    return std::fabs(*f) > Veces * mayor;
}

} // namespace quiralto
