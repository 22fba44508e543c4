// Files as the program needs them. Plain bytes, no toolkit. Body: files.cpp.
//
// Names are found without regard to case: folders come back from the settings in lower case, recent files
// in upper case, and they mean what is there. No name holds a zero character: whoever takes one from
// outside cuts it there (Cut_At_Zero).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

// The separator of paths, as text. A root or a mounted volume plays the part of a drive.
inline constexpr char Path_Separator = '/';

// The path as it is written on the disk, component by component: the exact name first, else the one that
// differs in the case of A to Z only (of several, the first in order). From the first component that is not
// there the rest stays as given; so a new file goes into the folder that was found, under the name given.
std::string Path_Found(const std::string& path);

// Whether the file can be opened for reading. A final separator is dropped. Only a plain file is a file:
// not a folder, a pipe or a device; and the question never blocks.
bool File_Exists(std::string path);

// The error number (errno) of the last File_Exists; 0 when it found the file.
extern int File_Last_Error;

// The whole file under its exact name; nothing when it is no plain file or cannot be read to its end.
std::optional<std::string> File_Read_Whole(const std::string& path);

// Whether the file is there and must not be written: nobody may (a mark that counts for the system's
// administrator too), or this user may not. To replace a file asks for rights to its folder only.
bool File_Is_Read_Only(const std::string& path);

// Replaces the file in one step: a crash or a full disk leaves the old file or the new one, never half
// of one. False when it failed; the old file is then as it was. What a crash leaves beside it has one name,
// the file's with ".new" behind it, and is gone with the next call.
[[nodiscard]] bool File_Replace(const std::string& path, const std::string& contents);

// Writes over the file from its start and leaves what lies behind, for files whose tail belongs to others.
// Creates the file if need be. 0, or the error number (errno) of what failed: the file is as it was then,
// so far as the disk lets it, and one that was not there is not there.
[[nodiscard]] int File_Overwrite(const std::string& path, std::string_view contents);

// A file read byte by byte in a memory of its own constant size, however large the file is. Whatever
// happens to the file meanwhile (it is cut, deleted, or the disk fails) is an end of the file and no more.
class File_Reader {
  public:
    // Opens a plain file, see File_Exists.
    explicit File_Reader(const std::string& path);
    ~File_Reader();
    File_Reader(const File_Reader&) = delete;
    File_Reader& operator=(const File_Reader&) = delete;

    bool Is_Open() const { return descriptor_ >= 0; }

    // The byte at the position, counted from 1; nothing at and behind the end. Meant for positions that
    // move forward; steps back are right but may cost a read.
    std::optional<std::uint8_t> At(std::uint64_t position) {
        // One unsigned comparison for both ends of the buffer.
        if (position - first_ >= count_ && !Fill(position)) return std::nullopt;
        return buffer_[position - first_];
    }

    // The first place of that byte at or behind the position, as fast as the memory gives it; nothing when
    // there is none to the end of the file.
    std::optional<std::uint64_t> Find(std::uint8_t byte, std::uint64_t position) {
        while (At(position)) {
            const std::uint8_t* const from = &buffer_[position - first_];
            const void* const found = std::memchr(from, byte, first_ + count_ - position);
            if (found != nullptr)
                return position +
                       static_cast<std::uint64_t>(static_cast<const std::uint8_t*>(found) - from);
            position = first_ + count_;
        }
        return std::nullopt;
    }

  private:
    bool Fill(std::uint64_t position);

    int descriptor_ = -1;
    std::uint64_t first_ = 1;  // position of the buffer's first byte
    std::size_t count_ = 0;
    std::array<std::uint8_t, 65536> buffer_;
};
