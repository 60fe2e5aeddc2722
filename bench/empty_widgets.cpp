/// The yardstick of the start-up figures: a Qt Widgets program with one empty window.
#include <QApplication>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1024, 640);
    window.show();
    return QApplication::exec();
}
