#include "game/error_line.h"

#include <tetrad/console/console_statements.h>

namespace tetrad {

void EraseErrorText()
{
    CUI_DrawToWindowRectStatement(ColorBlack(), true, QRectF(10, 200, 400, 15));
    // The longest message is some 5 pixels wider than the error line; without this its full stop stays behind.
    CUI_DrawToWindowRectStatement(ColorBlack(), true, QRectF(410, 200, 10, 15));
}

} // namespace tetrad
