// What the monkey has done, and how a run ends that found something: seed, number of the event and the last
// events, exit code 1. A crash and a hang tell the same.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

// Begins the diary of one life of the program. `seed` and `life` are told with a finding, `first` is the
// number of its first event in the whole run.
void Diary_Begin(std::uint64_t seed, int life, std::int64_t first);

// Notes an event. It is counted under its kind, and as driving that window.
void Diary_Note(std::string_view kind, std::string_view where, const std::string& what);

std::int64_t Diary_Events();

// A line among the last events that counts as none: a box that came, time that went by.
void Diary_Remark(const std::string& text);

// How often things happened, by "kind press", "window Patch", "opened Help".
extern std::map<std::string, std::int64_t> Diary_Counts;

// Something is wrong: tells it with the last events and ends the process.
[[noreturn]] void Finding(const std::string& text);
