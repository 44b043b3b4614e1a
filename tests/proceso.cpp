#include "tests/proceso.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quiralto {
namespace {

// One end of a pipe, closed when it goes.
class Extremo {
public:
    explicit Extremo(int descriptor) : descriptor_(descriptor) {}
    Extremo(Extremo&& otro) noexcept : descriptor_(std::exchange(otro.descriptor_, -1)) {}
    Extremo(const Extremo&) = delete;
    Extremo& operator=(const Extremo&) = delete;
    Extremo& operator=(Extremo&&) = delete;
    ~Extremo() { Cierra(); }

    int Descriptor() const { return descriptor_; }
    void Cierra() {
        if (descriptor_ >= 0)
            close(descriptor_);
        descriptor_ = -1;
    }

private:
    int descriptor_;
};

struct Tubería {
    Extremo lectura;
    Extremo escritura;
};

Tubería AbreTubería() {
    std::array<int, 2> extremos{};
    if (pipe2(extremos.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("pipe2");
    return {Extremo(extremos[0]), Extremo(extremos[1])};
}

std::vector<char*> DevPunteros(std::vector<std::string>& textos) {
    std::vector<char*> punteros;
    punteros.reserve(textos.size() + 1);
    for (std::string& texto : textos)
        punteros.push_back(texto.data());
    punteros.push_back(nullptr);
    return punteros;
}

std::vector<std::string> DevEntorno(const Llamada& llamada) {
    std::vector<std::string> entorno;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string texto = *variable;
        const bool puesta = std::ranges::any_of(
            llamada.entorno, [&](const auto& otra) { return texto.starts_with(otra.first + '='); });
        if (!puesta)
            entorno.push_back(texto);
    }
    for (const auto& [nombre, valor] : llamada.entorno)
        entorno.push_back(std::string(nombre).append("=").append(valor));
    return entorno;
}

// In the child: only calls that are safe behind a fork.
void PonLímite(__rlimit_resource_t recurso, std::size_t valor) {
    if (valor == 0)
        return;
    const rlimit límite{valor, valor};
    if (setrlimit(recurso, &límite) != 0)
        _exit(126);
}

// Moves bytes both ways until the process has closed its outputs or its time is over, which is
// what the answer says.
class Conversación {
public:
    Conversación(Extremo& entrada, const Extremo& salida, const Extremo& errores)
        : entrada_(entrada), sondeos_{pollfd{entrada.Descriptor(), POLLOUT, 0},
                                      pollfd{salida.Descriptor(), POLLIN, 0},
                                      pollfd{errores.Descriptor(), POLLIN, 0}} {}

    bool Sigue(const Llamada& llamada, Final& final) {
        const auto hasta = std::chrono::steady_clock::now() + llamada.plazo;
        while (sondeos_[1].fd >= 0 || sondeos_[2].fd >= 0) {
            const auto queda = std::chrono::duration_cast<std::chrono::milliseconds>(
                hasta - std::chrono::steady_clock::now());
            if (queda.count() <= 0)
                return false;
            if (poll(sondeos_.data(), sondeos_.size(), static_cast<int>(queda.count())) < 0 &&
                errno != EINTR)
                throw std::runtime_error("poll");
            if (sondeos_[0].revents != 0)
                Escribe(llamada.entrada);
            Lee(sondeos_[1], final.salida);
            Lee(sondeos_[2], final.errores);
        }
        return true;
    }

private:
    void Escribe(const std::string& texto) {
        const ssize_t cuántos =
            write(sondeos_[0].fd, texto.data() + escritos_, texto.size() - escritos_);
        if (cuántos > 0)
            escritos_ += static_cast<std::size_t>(cuántos);
        const bool cerrada = cuántos < 0 && errno != EAGAIN; // the process need not read all of it
        if (cerrada || escritos_ == texto.size()) {
            sondeos_[0].fd = -1;
            entrada_.Cierra();
        }
    }

    static void Lee(pollfd& sondeo, std::string& destino) {
        if (sondeo.fd < 0 || sondeo.revents == 0)
            return;
        std::array<char, 65536> búfer;
        const ssize_t cuántos = read(sondeo.fd, búfer.data(), búfer.size());
        if (cuántos > 0)
            destino.append(búfer.data(), static_cast<std::size_t>(cuántos));
        else
            sondeo.fd = -1;
    }

    Extremo& entrada_;
    std::array<pollfd, 3> sondeos_;
    std::size_t escritos_ = 0;
};

} // namespace

Final Ejecuta(const Llamada& llamada) {
    std::vector<std::string> palabras = llamada.palabras;
    std::vector<std::string> entorno = DevEntorno(llamada);
    const std::vector<char*> argv = DevPunteros(palabras);
    const std::vector<char*> envp = DevPunteros(entorno);
    Tubería entrada = AbreTubería();
    Tubería salida = AbreTubería();
    Tubería errores = AbreTubería();
    std::signal(SIGPIPE, SIG_IGN); // a process that stops reading is no end of this one
    const pid_t hijo = fork();
    if (hijo < 0)
        throw std::runtime_error("fork");
    if (hijo == 0) {
        dup2(entrada.lectura.Descriptor(), STDIN_FILENO);
        dup2(salida.escritura.Descriptor(), STDOUT_FILENO);
        dup2(errores.escritura.Descriptor(), STDERR_FILENO);
        std::signal(SIGPIPE, SIG_DFL);
        PonLímite(RLIMIT_STACK, llamada.pila);
        PonLímite(RLIMIT_AS, llamada.memoria);
        PonLímite(RLIMIT_CORE, 0);
        execve(argv.front(), argv.data(), envp.data());
        _exit(127);
    }
    entrada.lectura.Cierra();
    salida.escritura.Cierra();
    errores.escritura.Cierra();

    fcntl(entrada.escritura.Descriptor(), F_SETFL, O_NONBLOCK);
    Final final;
    final.agotado =
        !Conversación(entrada.escritura, salida.lectura, errores.lectura).Sigue(llamada, final);
    if (final.agotado)
        kill(hijo, SIGKILL);
    int estado = 0;
    rusage uso{};
    while (wait4(hijo, &estado, 0, &uso) < 0 && errno == EINTR) {
    }
    const auto segundos = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    };
    final.cpu = segundos(uso.ru_utime) + segundos(uso.ru_stime);
    if (WIFSIGNALED(estado))
        final.señal = WTERMSIG(estado);
    else if (!final.agotado)
        final.estado = WEXITSTATUS(estado);
    if (final.estado == 127 || final.estado == 126)
        throw std::runtime_error("cannot run " + llamada.palabras.front());
    return final;
}

} // namespace quiralto
