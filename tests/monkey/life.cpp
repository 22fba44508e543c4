#include "monkey/life.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <fstream>

#include "desk/windows.h"
#include "monkey/acts.h"
#include "monkey/checks.h"
#include "monkey/clock.h"
#include "monkey/diary.h"
#include "monkey/dice.h"
#include "monkey/disk.h"
#include "monkey/port.h"
#include "panels/pictures_qt.h"
#include "panels/spoken_qt.h"
#include "platform/gate.h"
#include "platform/random.h"
#include "shell/app_window.h"
#include "shell/frame.h"
#include "shell/style_qt.h"
#include "shell/wiring.h"

Dice Chance(1);
bool Wild_Life = false;

namespace {

App_Window* The_Window = nullptr;
std::int64_t Events_At_Most = 0;

// Waits may lie within waits, as far as the monkey leaves them to; then it leads out of some of them.
constexpr int Deepest = 10;
constexpr int Deep_Enough = 5;
bool Leading_Out = false;

// The monkey closes the program; it must not take forever.
bool Ending = false;
int Steps_To_End = 0;
constexpr int Most_Steps_To_End = 5000;

// What the screen shows now and then is enough to find what painting does wrong.
constexpr int Steps_Of_A_Picture = 97;

void Count_Windows() {
    static bool seen[12] = {};
    const Window* const windows[] = {&Editor,    &Editor_Juno, &Patch,      &Patch_MKS70,
                                     &Sequencer, &Oscillator,  &MIDI_Setup, &TName,
                                     &Help,      &File_Dlg,    &Input_Dlg};
    for (std::size_t place = 0; place < std::size(windows); ++place) {
        if (windows[place]->visible && !seen[place])
            ++Diary_Counts[std::string("opened ") + windows[place]->name];
        seen[place] = windows[place]->visible;
    }
}

void Move_Clock() {
    const int kind = Chance.Below(20);
    const int most = kind < 10 ? 5 : kind < 16 ? 60 : kind < 19 ? 400 : 3000;
    Clock_Move(static_cast<std::int64_t>(Chance.Between(0, most)) * 1000);
}

void Later(void (*work)()) {
    QMetaObject::invokeMethod(qApp, work, Qt::QueuedConnection);
}

void Step_To_End() {
    if (++Steps_To_End > Most_Steps_To_End) Finding("the program does not end");
    Disk_Fail_One_In(0);
    Ports_Heal();
    Clock_Move(50000);
    if (!Act_To_Leave() && Handlers_Running() == 0) Act_Exit();
}

// The program sleeps: the monkey's turn. It acts through the event loop, so that one act may come in while
// another is being worked on.
void Step() {
    static std::int64_t steps = 0;
    if (Handlers_Running() == 0) Check_At_Rest();
    Desktop_Sees_To_The_Front();
    Count_Windows();
    Move_Clock();
    if (Diary_Events() >= Events_At_Most) Ending = true;
    if (Handlers_Running() >= Deepest) Leading_Out = true;
    if (Handlers_Running() <= Deep_Enough) Leading_Out = false;
    if (++steps % Steps_Of_A_Picture == 0) (void)The_Window->grab();
    if (Ending) {
        Later(Step_To_End);
    } else if (Leading_Out) {
        Clock_Move(500000);
        Later([] { (void)Act_To_Leave(); });
    } else {
        for (int acts = Chance.One_In(10) ? Chance.Between(2, 4) : 1; acts > 0; --acts) Later(Act);
    }
    QAbstractEventDispatcher::instance()->wakeUp();
}

class Box_Counter : public QObject {
  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Show) return false;
        const auto* const box = qobject_cast<QMessageBox*>(object);
        if (box == nullptr) return false;
        std::string text = box->text().toStdString();
        Diary_Remark("box: " + text);
        text.resize(std::min(text.find_first_of("/\n"), text.size()));
        ++Diary_Counts["opened Message_Box"];
        ++Diary_Counts["box " + text];
        return false;
    }
};

void Take_Warning(QtMsgType, const QMessageLogContext&, const QString& text) {
    // The offscreen screen cannot be asked for everything.
    const std::string words = text.toStdString();
    if (words.find("This plugin does not support") != std::string::npos) return;
    Diary_Remark("toolkit: " + words);
    ++Diary_Counts["toolkit " + words];
}

// Nobody refuses an administrator a file.
class Plain_User {
  public:
    Plain_User() { was_root_ = ::geteuid() == 0 && ::seteuid(Nobody) == 0; }
    ~Plain_User() {
        if (was_root_) (void)!::seteuid(0);
    }
    Plain_User(const Plain_User&) = delete;
    Plain_User& operator=(const Plain_User&) = delete;

    static constexpr uid_t Nobody = 65534;

  private:
    bool was_root_ = false;
};

void Run(int& argument_count, char** arguments) {
    // Where the tests run as the administrator, the program does as nobody.
    QApplication::setSetuidAllowed(true);
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(Take_Warning);
    Box_Counter boxes;
    application.installEventFilter(&boxes);
    Style_Install();
    Pictures_Open();
    Widgets_Speak();
    Program_Wire();
    Checks_Begin();
    Random_Number = [] { return Chance.Below(1 << 20) / static_cast<double>(1 << 20); };

    App_Window window;
    The_Window = &window;
    Windows_Show_Changes = [] {
        try {
            The_Window->Show_Changes();
        } catch (const std::exception& mistake) {
            Finding(std::string("what is shown threw: ") + mistake.what());
        }
    };
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, Step);
    bool started = false;
    Guarded_Event([&started] { started = Main_Load(); });
    if (!started) Finding("the program does not start");
    QApplication::exec();
    Windows_Show_Changes = {};
    Check_At_End();
    Disk_Check();
}

}  // namespace

int Life_Run(const Life_Plan& plan, int& argument_count, char** arguments) {
    constexpr std::uint64_t Lives = 100003;
    Chance = Dice(plan.seed * Lives + static_cast<std::uint64_t>(plan.life));
    Wild_Life = Chance.One_In(2);
    Events_At_Most = plan.events;
    Diary_Begin(plan.seed, plan.life, plan.first);
    {
        const Plain_User plain;
        Disk_Begin(plan.folder);
        Disk_Write_Settings();
        Clock_Begin();
        Run(argument_count, arguments);
    }
    std::ofstream counts(plan.counts);
    counts << Diary_Events() << "\n";
    for (const auto& [name, count] : Diary_Counts) counts << count << " " << name << "\n";
    return 0;
}
