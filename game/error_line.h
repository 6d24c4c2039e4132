#pragma once

namespace tetrad {

/// Paints over the area of the red error line in the window's black.
void EraseErrorText();

} // namespace tetrad
