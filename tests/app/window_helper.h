#pragma once

#include "runtime/app/output_window.h"
#include "runtime/app/window.h"
#include "runtime/app/windows.h"
#include "runtime/controls/dialog_event.h"
#include "runtime/strings/not_given.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tetrad::testing_helpers {

/// The window statement with a place alone, carried out in full.
inline Window *open(Tag tag, const QRectF &rect = QRectF(40, 60, 300, 200))
{
    CUI_Window(tag, QString(), notGiven, rect);
    QApplication::processEvents();
    return CUI_WindowWithTag(tag);
}

/// Leaves no window, no output window and no dialog function behind.
class WindowTest : public testing::Test
{
protected:
    void TearDown() override
    {
        CUI_SetOnDialogFunction(nullptr);
        const QList<Window *> left = orderedWindows();
        qDeleteAll(left);
        CUI_OutputWindowSetTag(0);
    }
};

} // namespace tetrad::testing_helpers
