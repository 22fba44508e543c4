// What the program costs from outside: from its start to the first painted panel, the memory it holds, and
// the processor time of the idle program with the blink on. Needs a display and a built program:
//
//   start_bench PROGRAM [RUNS]
//
// The panel counts as painted when its ground shows on the screen, looked at every half millisecond.
#include <unistd.h>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
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

// User and system time so far, in seconds.
double Processor_Seconds(qint64 process) {
    QFile stat(QString("/proc/%1/stat").arg(process));
    if (!stat.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = stat.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    return (fields[11].toDouble() + fields[12].toDouble()) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argument_count, char** arguments) {
    QGuiApplication application(argument_count, arguments);
    if (argument_count < 2) {
        std::fprintf(stderr, "usage: start_bench PROGRAM [RUNS]\n");
        return 2;
    }
    const int runs = argument_count > 2 ? std::atoi(arguments[2]) : 9;
    std::vector<double> starts;
    std::vector<double> memory;
    double idle = 0;
    for (int run = 0; run <= runs; ++run) {
        QProcess program;
        QElapsedTimer clock;
        clock.start();
        program.start(arguments[1], {});
        while (!Panel_Shows() && clock.elapsed() < 5000) QThread::usleep(500);
        const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        program.waitForStarted();
        QThread::msleep(500);
        if (run > 0) {  // the first run warms up
            starts.push_back(milliseconds);
            memory.push_back(static_cast<double>(Own_Kilobytes(program.processId())) / 1024);
        }
        if (run == runs) {
            constexpr int Idle_Seconds = 10;
            const double before = Processor_Seconds(program.processId());
            QThread::sleep(Idle_Seconds);
            idle = (Processor_Seconds(program.processId()) - before) / Idle_Seconds * 100;
        }
        // Ended by its own menu: a JACK server is busy for seconds behind a client that was killed.
        QProcess::execute("xdotool", {"key", "ctrl+x"});
        if (!program.waitForFinished(5000)) program.kill();
        QThread::msleep(500);
    }
    std::printf("start to the first painted panel, median of %d: %.0f ms\n", runs, Median(starts));
    std::printf("resident memory (private and files), median: %.0f MB\n", Median(memory));
    std::printf("idle with the blink on: %.2f %% of a core\n", idle);
    return 0;
}
