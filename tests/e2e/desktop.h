// The program itself on a virtual screen, with a JACK server and a witness that prints what arrives.
// Nothing of it is ours but the program under test: the pointer and the keys are xdotool's, the screen is
// Xvfb's, the printed bytes are jack_midi_dump's.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fakes/child_process.h"
#include "fakes/jack_server.h"

class Desktop : public ::testing::Test {
  protected:
    Desktop();
    ~Desktop() override;

    // A JACK server with the witness "witness:input" and an instrument that could send, "sender:out".
    // Again behind a server that has died.
    void Start_Jack();
    // Waits until the server has a port of that name, or has it no more.
    static bool Wait_For_Jack_Port(const std::string& name, bool there);

    // Starts the program in its own folder with this settings file.
    void Start_Program(const std::string& settings, const Child_Process::Environment& changes = {});

    // Waits for the main window, then for its picture to be painted.
    void Wait_For_Main_Window();
    // Waits until a window of that title is on the screen (or has gone).
    bool Wait_For_Window(const std::string& title, bool there = true);

    bool Wait_For_Focus(const std::string& title);
    std::vector<unsigned long> Windows(const std::string& title);  // their numbers at the screen's server
    int Windows_Named(const std::string& title);

    // Waits for a box, presses the key, and waits until the box has gone; then until the frame has the keys
    // again, if it stands below the box and the answer has not ended the program.
    void Answer_Box(const std::string& key, bool over_the_frame = true);

    // Pointer and keys. Places are pixels of the screen; the main window stands at its upper left corner.
    std::string Xdotool(const std::vector<std::string>& arguments);
    void Move_To(int x, int y);
    void Press_Key(const std::string& key);

    // A part of the screen, "WIDTHxHEIGHT+X+Y", as text, one line a pixel.
    static std::vector<std::string> Picture(const std::string& place);

    // Waits until the witness has printed so many messages; all of them.
    std::vector<std::string> Witnessed(std::size_t count);

    std::string Settings() const;
    int Menu_Height();  // rows above the panel

    std::filesystem::path folder_;
    std::unique_ptr<Child_Process> screen_;
    std::unique_ptr<Jack_Server> jack_;
    std::unique_ptr<Child_Process> witness_;
    std::unique_ptr<Child_Process> sender_;
    std::unique_ptr<Child_Process> program_;
};
