// The product of two long lists of whole numbers as the coefficients of polynomials, in time n log
// n: number-theoretic transforms modulo two primes of 62 bits (Pollard, "The fast Fourier transform
// in a finite field", 1971), joined by the Chinese remainder theorem.
#pragma once

#include "engine/numeros/entero.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quiralto {

// c[k] = the sum of a[i]*b[k-i], of length a.size() + b.size() - 1; the lists are not empty. None
// where a sum could pass 2^118. Short lists are multiplied term by term.
std::optional<std::vector<Entero>> MultiplicaDensos(std::span<const std::int64_t> a,
                                                    std::span<const std::int64_t> b);

} // namespace quiralto
