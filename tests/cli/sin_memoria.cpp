// Loaded before the program's own libraries: the request for memory whose number stands in
// QUIRALTO_SIN_MEMORIA is refused, and so are those behind it where the number is negative.

#include <cstdlib>
#include <new>

namespace {

// Read at the first request: the run of the program's own constants may ask for some.
long Número() {
    static const long número = [] {
        const char* texto = std::getenv("QUIRALTO_SIN_MEMORIA");
        return texto == nullptr ? 0 : std::atol(texto);
    }();
    return número;
}

long peticiones = 0;

void* Pide(std::size_t tamaño) {
    ++peticiones;
    const long número = Número();
    void* memoria = nullptr;
    if (!(peticiones == número || (número < 0 && peticiones >= -número)))
        memoria = std::malloc(tamaño == 0 ? 1 : tamaño);
    if (memoria == nullptr)
        throw std::bad_alloc();
    return memoria;
}

} // namespace

void* operator new(std::size_t tamaño) {
    return Pide(tamaño);
}
void* operator new[](std::size_t tamaño) {
    return Pide(tamaño);
}
void operator delete(void* memoria) noexcept {
    std::free(memoria);
}
void operator delete[](void* memoria) noexcept {
    std::free(memoria);
}
void operator delete(void* memoria, std::size_t) noexcept {
    std::free(memoria);
}
void operator delete[](void* memoria, std::size_t) noexcept {
    std::free(memoria);
}
