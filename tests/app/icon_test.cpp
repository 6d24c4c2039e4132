#include "runtime/app/alerts.h"
#include "runtime/app/application.h"
#include "tests/app/alert_helper.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTemporaryDir>

using namespace tetrad;

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

void installTheme(const QString &folder, const QString &iconName, const QPixmap &picture)
{
    const QString iconFolder = folder + u"/hicolor/48x48/apps/"_qs;
    ASSERT_TRUE(QDir().mkpath(iconFolder));
    ASSERT_TRUE(picture.save(iconFolder + iconName + u".png"_qs));
    QFile index(folder + u"/hicolor/index.theme"_qs);
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=hicolor\nDirectories=48x48/apps\n[48x48/apps]\nSize=48\nType=Fixed\n");
    QIcon::setThemeSearchPaths({folder});
    QIcon::setThemeName(u"hicolor"_qs);
}

// The colour of the icon that a program starts with which has one of its own, or none.
QColor iconAtStart(const QIcon &own)
{
    const QTemporaryDir folder;
    installTheme(folder.path(), u"org.example.Sketch"_qs, filled(Qt::red));
    QCoreApplication::setApplicationName(u"Sketch"_qs);
    QGuiApplication::setDesktopFileName(u"org.example.Sketch"_qs);
    QApplication::setWindowIcon(own);
    CocoaInit();
    return colorOf(QApplication::windowIcon().pixmap(48));
}

TEST(ApplicationIcon, IsTheThemesNamedLikeTheId)
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
        alert.setStyle(style);
        EXPECT_EQ(alert.icon(), style == alertStyleCritical ? QMessageBox::Critical : QMessageBox::NoIcon) << style;
        EXPECT_TRUE(style == alertStyleCritical || colorOf(alert.iconPixmap()) == QColor(Qt::red)) << style;
    }
    whenAlertRuns(clicks(0));
    early.runModal(nullptr);
    EXPECT_EQ(colorOf(early.iconPixmap()), QColor(Qt::red)) << "that of the time of showing";
}

} // namespace
