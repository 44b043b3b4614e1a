// The font of formulas, numbers and the worksheet.
#pragma once

#include <QFont>

namespace quiralto {

// The desktop's fixed font, or another one where what stands behind that name is not fixed.
QFont DevFuenteFija();

} // namespace quiralto
