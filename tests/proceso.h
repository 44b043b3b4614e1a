// Runs a program as a process of its own, without a shell, under limits of time and memory.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quiralto {

struct Llamada {
    std::vector<std::string> palabras; // the program's path and its arguments
    std::string entrada;               // its standard input
    // Environment variables that are set for it, beside those of this process.
    std::vector<std::pair<std::string, std::string>> entorno;
    std::size_t pila = 0;    // bytes of stack; 0: as many as this process has
    std::size_t memoria = 0; // bytes of address space; 0: likewise
    std::chrono::seconds plazo{60};
};

struct Final {
    int estado = -1;      // exit status; -1 where a signal or the time limit has ended it
    int señal = 0;        // the signal that has ended it, or 0
    bool agotado = false; // it was ended because its time was over
    std::string salida;   // standard output
    std::string errores;  // standard error
    double cpu = 0;       // seconds of processor time
};

// Fault: std::runtime_error where the process cannot be started.
Final Ejecuta(const Llamada& llamada);

} // namespace quiralto
