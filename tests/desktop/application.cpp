// The application that widgets need, without a screen and with settings of its own.

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <clocale>

#include "session/border.h"
#include "testing/scratch_folder.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const scratch_folder settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(settings.path()));
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("oxhost");
    QCoreApplication::setApplicationName("oxhost");
    std::setlocale(LC_NUMERIC, "C");
    return RUN_ALL_TESTS();
}
