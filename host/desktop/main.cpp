#include <QApplication>
#include <QIcon>
#include <clocale>
#include <iostream>
#include <string_view>

#include "desktop/window/language_choice.h"
#include "desktop/window/look.h"
#include "desktop/window/main_window.h"
#include "session/border.h"

int main(int argc, char** argv) {
    ox::on_border_fault = oxhost::tell_fault;  // that of the shell, which is part of this program
    if (argc > 1 && argv[1] == std::string_view("--version")) {  // needs no display
        std::cout << "oxhost-window " OXHOST_VERSION "\nQt " << qVersion() << '\n';
        return EXIT_SUCCESS;
    }
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("oxhost");
    QCoreApplication::setApplicationName("oxhost");
    QGuiApplication::setDesktopFileName("oxhost");
    QGuiApplication::setWindowIcon(QIcon::fromTheme("oxhost"));
    std::setlocale(LC_NUMERIC, "C");  // Qt has set all of them; numbers of files never follow the locale
    try {
        oxhost::desktop::begin_language();
        oxhost::desktop::use_look(oxhost::desktop::remembered_look());
        oxhost::desktop::main_window window;
        window.show();
        const QStringList arguments = QApplication::arguments();
        if (arguments.size() > 1) window.open(arguments[1].toStdString());
        return QApplication::exec();
    } catch (const std::exception& e) {
        std::cerr << "oxhost-window: " << e.what() << '\n';
        return EXIT_FAILURE;
    }
}
