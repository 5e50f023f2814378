#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>

#include <cstdlib>

#include "host/qt/bridge.h"
#include "host/qt/window_controller.h"
#include "shell/main_program.h"

int ZorWindowEnvironment(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    if (qEnvironmentVariableIsEmpty("QT_PLUGIN_PATH")) {
        const QByteArray plugins = QLibraryInfo::location(QLibraryInfo::PluginsPath).toLocal8Bit();
        setenv("QT_PLUGIN_PATH", plugins.constData(), 0);
        setenv("QT_QPA_PLATFORM_PLUGIN_PATH", (plugins + "/platforms").constData(), 0);
    }
    QApplication app(argc, argv);
    QDir plugins(QCoreApplication::applicationDirPath());
    if (plugins.cdUp() && plugins.cd("Plugins") && plugins.exists("printsupport"))
        QCoreApplication::setLibraryPaths({plugins.absolutePath()});
    // The working directory stays where the user started the program: there
    // is no application bundle to step out of.
    QApplication::setWindowIcon(QIcon::fromTheme("utilities-terminal"));
    WindowController controller(run_engine);
    return app.exec();
}
