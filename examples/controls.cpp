// Controls named by tags, and one function that is told of everything that happens to them and prints it.

#include <tetrad/tetrad.h>

using namespace tetrad;

static qint64 onDialog(qint64 event, Tag tag, Tag wndTag, qint64)
{
    CUI_DialogEvent &record = *CUI_DialogEventObj();
    QString line = StringWithFormat("event %ld, tag %ld, window %ld: ", event, tag, wndTag);
    if (event == controlEventAction) {
        line += StringWithFormat("value %ld, text ", ControlIntegerValue(tag)) + ControlStringValue(tag);
    } else if (event == tableViewEventRowCount) { // a question; the answer goes back in the record
        record.longVal = 2;
        line += "answered 2";
    } else if (event == tableViewEventValue) {
        record.object = StringWithFormat("cell %ld, %@", record.longVal, record.tableColumnObj);
        line += StringWithFormat("answered '%@'", record.object);
    } else if (event == splitViewEventDrawDivider || event == tableViewEventDrawRow || event == windowEventDidUpdate) {
        return 0; // Printing repaints, and repainting brings these again: printed, they would never end.
    } else {      // A field that an event does not use holds what the last one left there.
        line += StringWithFormat("bool %d, long %ld, float %g", record.boolVal, record.longVal, record.floatVal);
    }
    static QStringList lines;
    lines = lines.mid(lines.size() - 25) << line;
    CUI_PrintToWindowClearStatement();
    CUI_PrintToWindowPrintStatement({lines.join('\n')});
    return 0;
}

int main()
{
    AppSetName("Controls");
    CocoaInit();
    CUI_EditMenu(1);
    CUI_Window(1, "Controls", windowStyleTitled | windowStyleClosable, QRectF(0, 0, 820, 420));
    CUI_PrintToWindowViewObj(CUI_WindowWithTag(1))->setTextInset(370); // lines begin beside the controls

    CUI_SetOnDialogFunction(onDialog);
    CUI_Button(11, "Press me", {10, 10, 110, 30});
    CUI_CheckBox(12, "Check me", {140, 10, 110, 30});
    CUI_Slider(13, 50, 0, 100, {10, 50, 160, 30});
    CUI_TextField(14, "Type, Return", {190, 50, 160, 30});
    CUI_TabView(15, {"First", "Second"}, {10, 90, 340, 90});
    CUI_Button(16, "On the first page", {10, 10, 150, 30});
    CUI_CheckBox(17, "On the second page", {10, 10, 180, 30});
    ViewAddSubview(tagFromObject(TabViewPage(15, 0)), 16);
    ViewAddSubview(tagFromObject(TabViewPage(15, 1)), 17);
    CUI_SplitView(18, Qt::Horizontal, {10, 190, 340, 40});
    CUI_Button(19, "Left", {0, 0, 170, 40});
    CUI_Button(20, "Right", {0, 0, 170, 40});
    SplitViewAddSubview(18, 19);
    SplitViewAddSubview(18, 20);
    CUI_TableView(21, {"Name", "Size"}, {10, 240, 340, 170});
    // What says nothing by itself is read aloud by these names.
    ViewSetAccessibleName(13, "Amount");
    ViewSetAccessibleName(14, "Number");
    ViewSetAccessibleName(21, "Cells");

    WindowRunModal(1); // until the window is closed
    AppTerminate();
}
