// A window with nothing in it, which a start of the program is measured against.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1400, 900);
    window.show();
    return QApplication::exec();
}
