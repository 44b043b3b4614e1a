#include "commands/fichero_primos.h"
#include "tests/apoyo.h"
#include "tests/criba.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace quiralto {
namespace {

namespace fs = std::filesystem;

class FicheroPrimos : public testing::Test {
protected:
    void SetUp() override {
        carpeta_ = fs::path(testing::TempDir()) / ("quiralto_" + std::to_string(::getpid()));
        fs::remove_all(carpeta_);
        fs::create_directories(carpeta_);
    }
    void TearDown() override { fs::remove_all(carpeta_); }

    fs::path Escribe(const fs::path& nombre, const std::string& bytes) const {
        fs::create_directories((carpeta_ / nombre).parent_path());
        std::ofstream(carpeta_ / nombre, std::ios::binary) << bytes;
        return carpeta_ / nombre;
    }

    static std::string Bytes() {
        std::ifstream entrada(QUIRALTO_PRIMOS, std::ios::binary);
        return {std::istreambuf_iterator<char>(entrada), {}};
    }

    static Primos Carga(const fs::path& fichero) {
        Banco banco;
        banco.contexto.TablaPrimos.fill(7); // whatever was there before is gone
        CargaPrimos(banco.contexto, fichero);
        EXPECT_TRUE(banco.TomaMensajes().empty());
        return banco.contexto.TablaPrimos;
    }

    fs::path carpeta_;
};

TEST_F(FicheroPrimos, GuardaLosPrimerosPrimosEnCuatroBytesCadaUno) {
    const std::string bytes = Bytes();
    ASSERT_EQ(bytes.size(), 19168U);
    const std::vector<bool> primo = CribaEratóstenes(46340);
    std::size_t i = 0;
    for (std::uint32_t n = 0; n < primo.size(); ++n) {
        if (!primo[n])
            continue;
        ASSERT_LE(i + 4, bytes.size()) << n;
        for (int k = 0; k < 4; ++k)
            ASSERT_EQ(static_cast<unsigned char>(bytes[i++]), n >> 8 * k & 0xFFU) << n;
    }
    EXPECT_EQ(i, bytes.size());
    EXPECT_EQ(bytes.substr(0, 12), std::string("\2\0\0\0\3\0\0\0\5\0\0\0", 12));
    EXPECT_EQ(bytes.substr(19164), std::string("\x01\xB5\0\0", 4)); // 46337
}

TEST_F(FicheroPrimos, LlenaLaTabla) {
    EXPECT_EQ(Carga(QUIRALTO_PRIMOS), DevTablaDePrueba());
    // Whatever stands behind the last record is not read.
    EXPECT_EQ(Carga(Escribe("largo", Bytes() + "más")), DevTablaDePrueba());
}

TEST_F(FicheroPrimos, SiFaltaNoSeCreaYLaTablaQuedaACero) {
    const fs::path falta = carpeta_ / "Primos.Qto";
    EXPECT_EQ(Carga(falta), Primos{});
    EXPECT_FALSE(fs::exists(falta));
    EXPECT_EQ(Carga(carpeta_), Primos{}); // a folder
    EXPECT_EQ(Carga(""), Primos{});
}

TEST_F(FicheroPrimos, SiEsCortoElRestoQuedaACero) {
    const std::string bytes = Bytes();
    for (const std::size_t tamaño : {0U, 1U, 3U, 4U, 5U, 400U, 403U, 19164U, 19167U}) {
        const fs::path corto = Escribe("Primos.Qto", bytes.substr(0, tamaño));
        EXPECT_EQ(Carga(corto), DevTablaDePrueba(tamaño / 4)) << tamaño;
        EXPECT_EQ(fs::file_size(corto), tamaño);
    }
}

TEST_F(FicheroPrimos, LoQueNoEsSuPrimoYLoDeDetrásValeCero) {
    const std::string bytes = Bytes();
    const struct {
        std::string bytes;
        std::size_t leídos;
    } casos[] = {
        {"garabatos sin primos", 0},
        {std::string(19168, '\0'), 0},
        {std::string(19168, '\xFF'), 0},
        {std::string("\1\0\0\0", 4) + bytes, 0},
        {bytes.substr(0, 40) + std::string("\1\0\0\0", 4) + bytes.substr(44), 10},
        {bytes.substr(0, 40) + bytes.substr(36), 10},
        {bytes.substr(0, 40) + std::string("\0\0\0\x80", 4) + bytes.substr(44), 10},
        // It still grows: 9 for 7, and a prime left out.
        {bytes.substr(0, 12) + std::string("\x09\0\0\0", 4) + bytes.substr(16), 3},
        {bytes.substr(0, 40) + bytes.substr(44) + bytes.substr(19164), 10},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Carga(Escribe("malo", caso.bytes)), DevTablaDePrueba(caso.leídos));
}

TEST_F(FicheroPrimos, UnByteCambiadoCortaLaTablaAllí) {
    const std::string bytes = Bytes();
    for (std::size_t i = 0; i < bytes.size(); i += 97) {
        std::string cambiado = bytes;
        cambiado[i] = static_cast<char>(cambiado[i] ^ (1 << i % 8));
        EXPECT_EQ(Carga(Escribe("cambiado", cambiado)), DevTablaDePrueba(i / 4)) << i;
    }
}

TEST_F(FicheroPrimos, SeBuscaAlLadoDelProgramaYLuegoEntreLosDatos) {
    const fs::path programa = carpeta_ / "bin";
    const fs::path deDatos = Escribe("share/quiralto/Primos.Qto", Bytes());
    fs::create_directories(programa);
    EXPECT_TRUE(fs::equivalent(DevFicheroPrimos(programa), deDatos));
    // One beside the program comes first, short or not.
    const fs::path alLado = Escribe("bin/Primos.Qto", "");
    EXPECT_TRUE(fs::equivalent(DevFicheroPrimos(programa), alLado));
    EXPECT_FALSE(fs::exists(DevFicheroPrimos(carpeta_ / "otra")));
}

TEST_F(FicheroPrimos, LaCarpetaDelProgramaEsLaDeSuEjecutable) {
    EXPECT_TRUE(fs::equivalent(DevCarpetaPrograma(), fs::path(QUIRALTO_PRUEBAS)));
}

} // namespace
} // namespace quiralto
