#pragma once

#include <QVariantMap>

namespace tetrad {

class CUI_PrintToWindowItem;

/// An item as a dictionary: the ten keys "type", "pt", "pt1", "pt2", "rect", "lineWidth", "lineCapStyle",
/// "lineDashPhase", "strokeFlag" and "fillFlag" always; "text", "attributes", "lineDashPattern", "strokeColor" and
/// "fillColor" when present.
QVariantMap archivedItem(const CUI_PrintToWindowItem &item);

} // namespace tetrad
