// A tone comes in from the instrument. What plays it is not ours either: mido3-play plays a standard MIDI
// file into the program's JACK port. Only what no player of files can send goes out by a player of our own:
// a dump that is cut into pieces.
#include <fstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

constexpr const char* Input = "Tonebench-01:Tonebench";

// Middles on the panel.
constexpr int Stop_X = 274;
constexpr int Stop_Y = 232;
constexpr int Resonance_X = 446;
constexpr int Resonance_Top = 112;  // the thumb's upper edge at value 0

// A dump of so many bytes; `value` stands in every parameter that it reaches.
std::string Dump(const std::string& name, char value, std::size_t size) {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    bytes += name;
    bytes.resize(17, ' ');
    bytes.resize(size - 1, value);
    return bytes + '\xF7';
}

// How a MIDI file writes a length.
std::string Length(std::size_t number) {
    std::string text(1, static_cast<char>(number % 128));
    while ((number /= 128) > 0) text.insert(text.begin(), static_cast<char>(0x80 + number % 128));
    return text;
}

std::string Whole(std::size_t number) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(number >> shift & 0xFFU);
    return text;
}

// A standard MIDI file that plays a note, the dump and a note, half a second apart. A minute of silence
// behind them keeps the player there: one that closes its port right behind a message may die of it, and
// leaves the server standing still.
std::string Midi_File(const std::string& dump) {
    using namespace std::string_literals;
    const std::string track = "\x60\x90\x3C\x40"s + "\x60\xF0"s + Length(dump.size() - 1) + dump.substr(1) +
                              "\x60\x80\x3C\x40"s + Length(11520) + "\xFF\x2F\x00"s;
    return "MThd\0\0\0\6\0\0\0\1\0\x60MTrk"s + Whole(track.size()) + track;
}

// The whole tone as the witness prints it, when these bytes are the tone's.
std::string Sent_Tone(const std::string& tone) {
    std::string line = "f0 41 35 00 21 20 01";
    constexpr std::string_view Digits = "0123456789abcdef";
    for (const char character : tone) {
        const auto byte = static_cast<unsigned char>(character);
        line += {' ', Digits[byte / 16U], Digits[byte % 16U]};
    }
    return line + " 24 07 f0 41 36 00 21 30 01 00 00 01 00 02 00 03 00 04 00 05 00 06 40 f7";
}

std::string New_Tone() {
    std::string tone = std::string(10, ' ') + std::string(49, '\0');
    tone[13] = tone[19] = '\x38';
    tone[20] = '\x40';
    return tone;
}

}  // namespace

class Reception_On_The_Desktop : public Desktop {
  protected:
    // The program goes first, while the server still runs.
    ~Reception_On_The_Desktop() override { program_.reset(); }

    void Start() {
        Start_Jack();
        Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\nReceive=1\n");
        Wait_For_Main_Window();
    }

    void Begin() {
        Press_Key("ctrl+v");
        ASSERT_TRUE(Wait_For_Jack_Port(Input, true)) << "the input does not open";
    }

    void Play(const std::string& dump) {
        const std::string path = (folder_ / "dump.mid").string();
        std::ofstream(path, std::ios::binary) << Midi_File(dump);
        players_.push_back(std::make_unique<Child_Process>(
            Lines{"mido3-play", "-m", "-o", Input, path},
            Child_Process::Environment{{"MIDO_BACKEND", "mido.backends.rtmidi/UNIX_JACK"},
                                       {"PYTHONUNBUFFERED", "1"}}));
        Child_Process& player = *players_.back();
        ASSERT_TRUE(player.Wait_For_Line("note_off", 10s))
            << (player.Errors().empty() ? "" : player.Errors().back());
    }

    void Stop() {
        Move_To(Stop_X, Menu_Height() + Stop_Y);
        Xdotool({"click", "1"});
        ASSERT_TRUE(Wait_For_Jack_Port(Input, false)) << "the input stays open";
    }

    // Sends the tone by its shortcut, which is free only outside of the mode.
    void Expect_Tone(const std::string& tone, std::size_t messages) {
        Press_Key("ctrl+t");
        const Lines sent = Witnessed(messages);
        ASSERT_EQ(sent.size(), messages);
        EXPECT_EQ(sent.back(), Sent_Tone(tone));
    }

  private:
    std::vector<std::unique_ptr<Child_Process>> players_;
};

TEST_F(Reception_On_The_Desktop, shows_a_dump_of_67_bytes_and_echoes_nothing) {
    Start();
    Begin();
    Play(Dump("STRINGS", '\x40', 67));
    ASSERT_TRUE(Wait_For_Jack_Port(Input, false)) << "one tone ends the reception";
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Messages_Dumped(*witness_), Lines{}) << "nothing is sent back";

    // The thumb of the resonance stands at 64: 64 * 80 / 127 = 40 pixels up. A press on it sends its value.
    Move_To(Resonance_X, Menu_Height() + Resonance_Top - 40 + 5);
    Xdotool({"mousedown", "1"});
    EXPECT_EQ(Witnessed(1), Lines{"f0 41 36 00 21 20 01 23 40 f7"}) << "automatic sending is back";
    Xdotool({"mouseup", "1"});
    Expect_Tone("STRINGS   " + std::string(49, '\x40'), 2);
}

TEST_F(Reception_On_The_Desktop, stores_a_dump_of_another_length_and_waits_until_stop) {
    Start();
    std::string tone = New_Tone();
    std::size_t messages = 0;
    for (const std::size_t size : {40U, 66U, 68U}) {
        Begin();
        const std::string dump = Dump("N" + std::to_string(size), static_cast<char>(size), size);
        Play(dump);
        ASSERT_TRUE(Wait_For_Jack_Port(Input, true)) << "the mode stays";
        Press_Key("ctrl+t");
        Stop();
        const std::string stored = dump.substr(7, 59);
        tone.replace(0, stored.size(), stored);
        Expect_Tone(tone, ++messages);
    }
}

TEST_F(Reception_On_The_Desktop, refuses_a_dump_of_70000_bytes_and_takes_the_next_tone) {
    Start();
    Begin();
    const std::string dump = Dump("HUGE", '\x11', 70000);
    {
        std::ofstream file(folder_ / "dump.txt");
        file << std::hex;
        for (std::size_t place = 0; place < dump.size(); ++place) {
            file << static_cast<unsigned>(static_cast<unsigned char>(dump[place]))
                 << (place % 500 == 499 ? '\n' : ' ');
        }
    }
    {
        Child_Process player(
            {BUILD_DIR "/tests/jack_player", "player", (folder_ / "dump.txt").string(), Input});
        ASSERT_TRUE(player.Wait_For_Line("played", 10s));
        Answer_Box("Return");
    }
    EXPECT_EQ(Messages_Dumped(*witness_), Lines{});
    Play(Dump("NEXT", '\x22', 67));
    ASSERT_TRUE(Wait_For_Jack_Port(Input, false));
    Expect_Tone("NEXT      " + std::string(49, '\x22'), 1);
}

TEST_F(Reception_On_The_Desktop, ends_with_a_report_when_the_device_is_no_longer_there) {
    Start();
    Begin();
    Child_Process cut({"jack_disconnect", "sender:out", Input});
    ASSERT_EQ(cut.Wait_For_End(5s), 0);
    Answer_Box("Return");
    ASSERT_TRUE(Wait_For_Jack_Port(Input, false));
    Expect_Tone(New_Tone(), 1);
    Begin();
    Stop();
}

TEST_F(Reception_On_The_Desktop, has_no_shortcut_without_the_key) {
    Start_Jack();
    Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\n");
    Wait_For_Main_Window();
    Press_Key("ctrl+v");
    Expect_Tone(New_Tone(), 1);
    Child_Process list({"jack_lsp"});
    list.Wait_For_End(5s);
    EXPECT_FALSE(list.Wait_For_Line(Input, 0ms));
}
