#include "e2e/desktop.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

using namespace std::chrono_literals;

namespace {

// A busy machine may take long; a test that passes waits for none of it.
constexpr auto Patience = 20s;

std::string Temporary_Folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tonebench-desktop-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return pattern;
}

// Asks again and again until the answer is yes or the patience is over.
template <class Question>
bool Wait_For(const Question& question) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!question()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(20ms);
    }
    return true;
}

}  // namespace

Desktop::Desktop() : folder_(Temporary_Folder()) {
    std::filesystem::copy(BUILD_DIR "/tonebench", folder_ / "tonebench");
    std::filesystem::copy(BUILD_DIR "/JX8P.FNT", folder_ / "JX8P.FNT");
    screen_ = std::make_unique<Child_Process>(std::vector<std::string>{
        "Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
    if (!Wait_For([this] { return !screen_->Output().empty(); }))
        throw std::runtime_error("no virtual screen");
    setenv("DISPLAY", (":" + screen_->Output().front()).c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
}

Desktop::~Desktop() {
    program_.reset();
    sender_.reset();
    witness_.reset();
    jack_.reset();
    screen_.reset();
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
}

void Desktop::Start_Jack() {
    if (jack_ == nullptr) jack_ = std::make_unique<Jack_Server>();
    Jack_Clients clients = jack_->Start_With(
        {Midi_Dump("witness"), {{"jack_midiseq", "sender", "48000", "0", "60", "8000"}, "sender:out"}});
    witness_ = std::move(clients[0]);
    sender_ = std::move(clients[1]);
}

bool Desktop::Wait_For_Jack_Port(const std::string& name, bool there) {
    return Wait_For([&] { return Jack_Port_Is_There(name) == there; });
}

void Desktop::Start_Program(const std::string& settings, const Child_Process::Environment& changes) {
    if (!settings.empty()) std::ofstream(folder_ / "Tonebench.INI", std::ios::binary) << settings;
    program_ = std::make_unique<Child_Process>(std::vector<std::string>{(folder_ / "tonebench").string()},
                                               changes);
}

std::string Desktop::Xdotool(const std::vector<std::string>& arguments) {
    std::vector<std::string> command = {"xdotool"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    Child_Process tool(command);
    tool.Wait_For_End(Patience);
    std::string text;
    for (const std::string& line : tool.Output()) text += line + "\n";
    return text;
}

void Desktop::Move_To(int x, int y) {
    Xdotool({"mousemove", std::to_string(x), std::to_string(y)});
}
void Desktop::Press_Key(const std::string& key) {
    Xdotool({"key", key});
}

bool Desktop::Wait_For_Focus(const std::string& title) {
    return Wait_For([&] { return Xdotool({"getwindowfocus", "getwindowname"}) == title + "\n"; });
}

std::vector<unsigned long> Desktop::Windows(const std::string& title) {
    std::istringstream list(Xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"}));
    return {std::istream_iterator<unsigned long>(list), {}};
}

int Desktop::Windows_Named(const std::string& title) {
    return static_cast<int>(Windows(title).size());
}

void Desktop::Answer_Box(const std::string& key, bool over_the_frame) {
    // A box has the program's name; so has the frame, which is older and has a lower number.
    unsigned long box = 0;
    EXPECT_TRUE(Wait_For([&] {
        const auto windows = Windows("Tonebench");
        if (windows.size() <= (over_the_frame ? 1 : 0)) return false;
        box = *std::max_element(windows.begin(), windows.end());
        return Xdotool({"getwindowfocus"}) == std::to_string(box) + "\n";
    })) << "no box with the keys";
    std::this_thread::sleep_for(200ms);
    Press_Key(key);
    EXPECT_TRUE(Wait_For([&] {
        const auto windows = Windows("Tonebench");
        return std::find(windows.begin(), windows.end(), box) == windows.end();
    })) << "the box stays";
    if (over_the_frame) {
        EXPECT_TRUE(Wait_For([&] {
            return !program_->Is_Running() || Xdotool({"getwindowfocus", "getwindowname"}) == "Tonebench\n";
        })) << "the frame without the keys";
    }
    std::this_thread::sleep_for(100ms);
}

bool Desktop::Wait_For_Window(const std::string& title, bool there) {
    return Wait_For([&] { return Xdotool({"search", "--onlyvisible", "--name", title}).empty() != there; });
}

std::vector<std::string> Desktop::Picture(const std::string& place) {
    Child_Process picture({"import", "-window", "root", "-crop", place, "+repage", "-depth", "8", "txt:-"});
    picture.Wait_For_End(Patience);
    return picture.Output();
}

// The panel is painted when its ground shows below the menu bar.
int Desktop::Menu_Height() {
    for (const std::string& line : Picture("1x100+520+0")) {
        if (line.find("#1B1D21") == std::string::npos) continue;
        return std::stoi(line.substr(line.find(',') + 1));
    }
    return 0;
}

void Desktop::Wait_For_Main_Window() {
    ASSERT_TRUE(Wait_For([this] { return Menu_Height() > 0; })) << "the panel does not show";
    Wait_For([this] { return !Xdotool({"getwindowfocus", "getwindowname"}).empty(); });
    std::this_thread::sleep_for(200ms);
}

std::vector<std::string> Desktop::Witnessed(std::size_t count) {
    Wait_For([&] { return Messages_Dumped(*witness_).size() >= count; });
    return Messages_Dumped(*witness_);
}

std::string Desktop::Settings() const {
    std::ostringstream text;
    text << std::ifstream(folder_ / "Tonebench.INI", std::ios::binary).rdbuf();
    return text.str();
}
