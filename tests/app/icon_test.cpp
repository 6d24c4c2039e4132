#include "tests/app/alert_helper.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTemporaryDir>

#include <cstdlib>

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

// Ends with status 0 if the icon that a program starts with, which has one of its own or none, is of the colour.
void startWithIcon(const QIcon &own, Qt::GlobalColor color)
{
    const QTemporaryDir folder;
    const QString icons = folder.path() + u"/hicolor/48x48/apps/"_s;
    EXPECT_TRUE(QDir().mkpath(icons) && filled(Qt::red).save(icons + u"org.example.Sketch.png"_s));
    QIcon::setThemeSearchPaths({folder.path()});
    QCoreApplication::setApplicationName(u"Sketch"_s);
    QGuiApplication::setDesktopFileName(u"org.example.Sketch"_s);
    QApplication::setWindowIcon(own);
    CocoaInit();
    std::_Exit(colorOf(QApplication::windowIcon().pixmap(48)) == QColor(color) ? 0 : 1);
}

TEST(ApplicationIcon, IsTheInstalledOneNamedLikeTheIdUnlessTheProgramHasOne)
{
    EXPECT_EXIT(startWithIcon({}, Qt::red), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(startWithIcon(filled(Qt::blue), Qt::blue), testing::ExitedWithCode(0), "");
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
