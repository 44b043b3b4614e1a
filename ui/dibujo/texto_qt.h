// Text on its way between the toolkit (UTF-16) and everything else (UTF-8).
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quiralto {

inline QString DevQString(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

inline std::string DevUtf8(const QString& texto) {
    return texto.toStdString();
}

} // namespace quiralto
