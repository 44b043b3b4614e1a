#include "engine/numeros/texto_a_double.h"

#include <cerrno>
#include <charconv>
#include <clocale> // newlocale
#include <cmath>
#include <cstdlib> // strtod_l
#include <version>

namespace quiralto {

bool LeeDoubleConLocaleC(const std::string& texto, double& valor) {
    static const locale_t LocaleC = newlocale(LC_ALL_MASK, "C", nullptr);
    errno = 0;
    const double leído = strtod_l(texto.c_str(), nullptr, LocaleC);
    if (std::isinf(leído) || (leído == 0 && errno == ERANGE))
        return false;
    valor = leído;
    return true;
}

#ifdef __cpp_lib_to_chars
bool LeeDouble(const std::string& texto, double& valor) {
    return std::from_chars(texto.data(), texto.data() + texto.size(), valor).ec == std::errc{};
}
#else
bool LeeDouble(const std::string& texto, double& valor) {
    return LeeDoubleConLocaleC(texto, valor);
}
#endif

} // namespace quiralto
