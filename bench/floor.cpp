// The floor that start-up and typing are compared with: the least a Qt program with one field can be. Return empties
// the field.
#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(580, 250);
    QVBoxLayout layout(&window);
    QLineEdit field;
    layout.addWidget(&field);
    QObject::connect(&field, &QLineEdit::returnPressed, &field, &QLineEdit::clear);
    window.show();
    return QApplication::exec();
}
