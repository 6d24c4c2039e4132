#include "game/error_line.h"

#include <tetrad/console/console_statements.h>

namespace tetrad {

void EraseErrorText()
{
    CUI_DrawToWindowRectStatement(ColorBlack(), true, QRectF(10, 200, 400, 15));
}

} // namespace tetrad
