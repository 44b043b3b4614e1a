// The kinds of characters that the expression language tells apart.
#pragma once

namespace quiralto {

constexpr bool EsDígito(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool EsSigno(char c) {
    return c == '+' || c == '-';
}

// The operators behind which a sign belongs to the operand that follows.
constexpr bool EsOperadorFuerte(char c) {
    return c == '*' || c == '/' || c == '^';
}

} // namespace quiralto
