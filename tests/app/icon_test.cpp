#include "tests/app/alert_helper.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTemporaryDir>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

QPixmap filled(Qt::GlobalColor color)
{
    QPixmap picture(48, 48);
    picture.fill(color);
    return picture;
}

// The colour in the middle of a picture, invalid if there is none.
QColor colorOf(const QPixmap &picture)
{
    const QImage image = picture.toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}

// The colour of the icon that a program starts with which has one of its own, or none.
QColor iconAtStart(const QIcon &own)
{
    const QTemporaryDir folder;
    const QString icons = folder.path() + u"/hicolor/48x48/apps/"_s;
    EXPECT_TRUE(QDir().mkpath(icons) && filled(Qt::red).save(icons + u"org.example.Sketch.png"_s));
    QIcon::setThemeSearchPaths({folder.path()});
    QCoreApplication::setApplicationName(u"Sketch"_s);
    QGuiApplication::setDesktopFileName(u"org.example.Sketch"_s);
    QApplication::setWindowIcon(own);
    CocoaInit();
    return colorOf(QApplication::windowIcon().pixmap(48));
}

TEST(ApplicationIcon, IsTheInstalledOneNamedLikeTheId)
{
    EXPECT_EQ(iconAtStart({}), QColor(Qt::red));
}

TEST(ApplicationIcon, OfTheProgramsOwnStays)
{
    EXPECT_EQ(iconAtStart(filled(Qt::blue)), QColor(Qt::blue));
}

TEST(AlertIcon, IsTheApplicationsUnlessCritical)
{
    Alert early;
    QApplication::setWindowIcon(filled(Qt::red));
    for (const qint64 style : {alertStyleWarning, alertStyleInformational, alertStyleCritical}) {
        Alert alert;
        alert.setAlertStyle(style);
        EXPECT_EQ(alert.icon(), style == alertStyleCritical ? QMessageBox::Critical : QMessageBox::NoIcon) << style;
        EXPECT_TRUE(style == alertStyleCritical || colorOf(alert.iconPixmap()) == QColor(Qt::red)) << style;
    }
    whenAlertRuns(clicks(0));
    early.runModal(nullptr);
    EXPECT_EQ(colorOf(early.iconPixmap()), QColor(Qt::red)) << "that of the time of showing";
}

} // namespace
