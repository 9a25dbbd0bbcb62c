// Roots in conjugate pairs.
#pragma once

#include <complex>
#include <vector>

namespace Lumo::Filter {

/// Adds a root and, when it is not real, the conjugate one after it.
inline void AddRoot(std::vector<std::complex<double>>& roots, std::complex<double> root) {
    roots.push_back(root);
    if (root.imag() != 0.0)
        roots.push_back(std::conj(root));
}

/// Product of all (x - root), a real number for a real x and roots in conjugate pairs.
inline double RealProduct(const std::vector<std::complex<double>>& roots, double x) {
    std::complex<double> product = 1.0;
    for (std::complex<double> root : roots)
        product *= x - root;
    return product.real();
}

}  // namespace Lumo::Filter
