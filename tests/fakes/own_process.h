// Work in a process of its own, forked from the test with everything that the test has made so far: to be
// killed at any point, or to get a disk on which nothing fits any more.
#pragma once

#include <functional>
#include <string>

// Runs the work and kills it at so many steps of its system calls: before a call, behind it, before the
// next one. True when it was killed there; false when it had ended before. Throws std::runtime_error where
// a process cannot be watched, and when the work ends otherwise.
bool Killed_At(int step, const std::function<void()>& work);

// Runs the body; what it expects counts for this test.
void In_A_Process(const std::function<void()>& body);

// A disk of a few pages in a folder. Inside In_A_Process only: it goes with the process.
class Small_Disk {
  public:
    // Where nothing may be mounted the folder stays as it is, and the process gets a limit on the size of
    // its files instead.
    explicit Small_Disk(std::string folder);

    // From here on nothing new fits.
    void Fill();

    // What a write that does not fit says.
    int Error() const;

  private:
    std::string folder_;
    bool mounted_ = false;
};
