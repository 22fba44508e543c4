// What the program costs from outside: from its start to the first painted panel, and the memory it holds.
// Needs a display and a built program:
//
//   start_bench RUNS PROGRAM [ARGUMENT]
//   start_bench bare               is itself a program: one empty window with the panel's ground, and
//   nothing else
//
// Prints milliseconds and megabytes, each the middle one of the runs. The panel counts as painted when its
// ground shows on the screen, looked at every half millisecond.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QShortcut>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const QColor Ground(0x1b, 0x1d, 0x21);

// A strip below the menu bar, at the panel's right edge.
bool Panel_Shows() {
    const QImage strip = QGuiApplication::primaryScreen()->grabWindow(0, 500, 60, 1, 1).toImage();
    return strip.pixelColor(0, 0) == Ground;
}

qint64 Status_Kilobytes(qint64 process, const char* field) {
    QFile status(QString("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (!line.startsWith(field)) continue;
        return line.mid(static_cast<qsizetype>(qstrlen(field))).trimmed().split(' ').front().toLongLong();
    }
    return 0;
}

// What the process itself holds: without the buffers that a JACK server shares with all its clients.
qint64 Own_Kilobytes(qint64 process) {
    return Status_Kilobytes(process, "RssAnon:") + Status_Kilobytes(process, "RssFile:");
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// What the toolkit alone costs, at the panel's place and size.
int Bare_Window(int argument_count, char** arguments) {
    QApplication application(argument_count, arguments);
    QWidget window;
    window.setGeometry(0, 0, 541, 508);
    window.setPalette(Ground);
    const QShortcut end(QKeySequence("Ctrl+X"), &window, [] { QApplication::quit(); });
    window.show();
    window.activateWindow();  // no window manager does it
    return QApplication::exec();
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count == 2 && QByteArray(arguments[1]) == "bare")
        return Bare_Window(argument_count, arguments);
    QGuiApplication application(argument_count, arguments);
    if (argument_count < 3) {
        std::fprintf(stderr, "usage: start_bench RUNS PROGRAM [ARGUMENT]\n");
        return 2;
    }
    const int runs = std::atoi(arguments[1]);
    QStringList passed_on;
    for (int place = 3; place < argument_count; ++place) passed_on << arguments[place];
    std::vector<double> starts;
    std::vector<double> memory;
    for (int run = 0; run <= runs; ++run) {
        QProcess program;
        QElapsedTimer clock;
        clock.start();
        program.start(arguments[2], passed_on);
        while (!Panel_Shows() && clock.elapsed() < 5000) QThread::usleep(500);
        const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        program.waitForStarted();
        QThread::msleep(500);
        if (run > 0) {  // the first run warms up
            starts.push_back(milliseconds);
            memory.push_back(static_cast<double>(Own_Kilobytes(program.processId())) / 1024);
        }
        // Ended by its own menu: a JACK server is busy for seconds behind a client that was killed.
        QProcess::execute("xdotool", {"key", "ctrl+x"});
        if (!program.waitForFinished(5000)) {
            program.kill();
            program.waitForFinished();
        }
        QThread::msleep(500);
    }
    std::printf("%.0f %.0f\n", Median(starts), Median(memory));
    return 0;
}
