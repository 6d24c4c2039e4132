// An address book: a table, a form for the person selected in it, a menu, and files.

#include <tetrad/tetrad.h>

#include <fstream>

using namespace tetrad;

// Everything has a number of its own, by which statements and events name it.
enum Windows : Tag { bookWindow = 1, bookPanel, bookMenu, openItem, saveItem };
enum Buttons : Tag { addButton = 1, changeButton, removeButton, friendButton, workButton };
enum Fields : Tag { peopleTable = 11, nameField, phoneField };
using Person = QStringList; // name, phone, kind
static QList<Person> people;

// The form shows the person selected in the table, which is remembered until the program starts again.
static void showSelected()
{
    const Person person = people.value(TableViewSelectedRow(peopleTable)); // empty for none, which is row -1
    ControlSetStringValue(nameField, person.value(0));
    ControlSetStringValue(phoneField, person.value(1));
    ControlSetIntegerValue(person.value(2) == "Work" ? workButton : friendButton, 1);
    PreferenceSetValue("row", TableViewSelectedRow(peopleTable));
}

static void showPeople(qint64 selectedRow)
{
    TableViewReloadData(peopleTable); // asks for everything again, see onDialog
    TableViewSelectRow(peopleTable, selectedRow);
    showSelected();
}

static void press(Tag button)
{
    const QString kind = ControlIntegerValue(friendButton) == 1 ? "Friend" : "Work";
    const Person entered = {ControlStringValue(nameField), ControlStringValue(phoneField), kind};
    qint64 row = TableViewSelectedRow(peopleTable);
    if (button == addButton) {
        people.append(entered);
        row = people.size() - 1;
    } else if (button == changeButton && row >= 0) {
        people[row] = entered;
    } else if (button == removeButton && row >= 0) {
        people.removeAt(row);
    }
    showPeople(row);
}

static void readBook(const QString &path, qint64 selectedRow)
{
    people.clear();
    std::ifstream file(path.toStdString());
    for (std::string line; std::getline(file, line);) {
        people.append(StringComponentsSeparatedByString(QString::fromStdString(line), "\t"));
    }
    showPeople(selectedRow);
}

static void writeBook(const QString &path)
{
    std::ofstream file(path.toStdString());
    for (const Person &person : people) {
        file << person.join("\t").toStdString() << "\n";
    }
}

static void chooseFile(bool opens)
{
    const QString path = opens ? CUI_OpenPanel(bookPanel, "Open an address book", {}, "book")
                               : CUI_SavePanel(bookPanel, "Save the address book", {}, "book");
    if (!path.isNull()) { // null: cancelled
        PreferenceSetValue("book", path);
        opens ? readBook(path, 0) : writeBook(path);
    }
}

// Whatever happens comes here: what, and to which number. Further values are in the record, and answers go there.
static qint64 onDialog(qint64 event, Tag tag, Tag, qint64)
{
    CUI_DialogEvent &record = *CUI_DialogEventObj();
    if (event == tableViewEventRowCount) {
        record.longVal = people.size();
    } else if (event == tableViewEventValue) {
        record.object = people.value(record.longVal).value(record.tableColumnObj.toInt());
    } else if (event == tableViewEventSelectionChanged) {
        showSelected();
    } else if (event == menuEventItem) {
        chooseFile(record.longVal == openItem);
    } else if (event == controlEventAction && tag <= removeButton) {
        press(tag);
    }
    return 0;
}

int main()
{
    AppSetName("Form");
    CocoaInit();
    CUI_Menu(bookMenu, 0, menuItemEnabled, "File", {});
    CUI_Menu(bookMenu, openItem, menuItemEnabled, "Open…", "o"); // or Ctrl+O
    CUI_Menu(bookMenu, saveItem, menuItemEnabled, "Save As…", "s");
    CUI_EditMenu(2); // right of the application's own menu and File
    CUI_Window(bookWindow, "Address book", windowStyleTitled | windowStyleClosable, {0, 0, 680, 270});
    CUI_TableView(peopleTable, {"Name", "Phone", "Kind"}, {20, 20, 390, 230});
    CUI_TextLabel(21, "Name:", {430, 20, 60, 30});
    CUI_TextField(nameField, "", {490, 20, 170, 30});
    CUI_TextLabel(22, "Phone:", {430, 60, 60, 30});
    CUI_TextField(phoneField, "", {490, 60, 170, 30});
    CUI_RadioButton(friendButton, "Friend", {490, 100, 170, 25});
    CUI_RadioButton(workButton, "Work", {490, 125, 170, 25});
    CUI_Button(addButton, "Add", {430, 220, 70, 30});
    CUI_Button(changeButton, "Change", {510, 220, 70, 30});
    CUI_Button(removeButton, "Remove", {590, 220, 70, 30});
    ViewSetAccessibleName(peopleTable, "People"); // what a screen reader says
    ViewSetAccessibleName(nameField, "Name");
    ViewSetAccessibleName(phoneField, "Phone");
    CUI_SetOnDialogFunction(onDialog);
    readBook(PreferenceValue("book").toString(), PreferenceValue("row").toLongLong());
    WindowRunModal(bookWindow); // until it is closed, which ends the program
}
