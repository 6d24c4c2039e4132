#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    // An exit test runs its statement in a new process, started from this executable.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    // CTest lists the cases without the environment that it runs them in; a display must not be needed for that.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    application.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
