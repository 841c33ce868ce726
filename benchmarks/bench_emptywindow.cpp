// An empty window, for comparison with the inspector's; see scripts/measure-lightness.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("empty"));
    window.resize(1400, 800);
    window.show();
    return QApplication::exec();
}
