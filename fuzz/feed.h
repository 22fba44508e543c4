// What every target reads its input with, and says what must hold by.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

// A finding: the place is printed, and the input is kept by the fuzzer.
inline void Check(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    if (holds) return;
    std::fprintf(stderr, "%s:%d does not hold\n", file, line);
    std::abort();
}

// The same for two texts, which are printed: what is, and what should be.
inline void Check_Equal(std::string_view is, std::string_view expected, const char* file = __builtin_FILE(),
                        int line = __builtin_LINE()) {
    if (is == expected) return;
    for (const std::string_view text : {is, expected}) {
        for (const char letter : text) {
            const bool plain = letter >= ' ' && letter <= '~';
            std::fprintf(stderr, plain ? "%c" : "<%02X>", static_cast<unsigned char>(letter));
        }
        std::fprintf(stderr, "\n");
    }
    Check(false, file, line);
}

// The bytes of an input as choices, the first ones first. Behind its end every choice is 0.
class Feed {
  public:
    Feed(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    bool Empty() const { return rest_.empty(); }

    std::uint8_t Byte() {
        if (rest_.empty()) return 0;
        const auto byte = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }

    // 0 to count - 1.
    int Below(std::size_t count) { return static_cast<int>(Byte() % count); }

    // As many bytes as are there, at most `count`.
    std::string_view Bytes(std::size_t count) {
        const std::string_view bytes = rest_.substr(0, count);
        rest_.remove_prefix(bytes.size());
        return bytes;
    }

    // A length and so many bytes, at most `longest`.
    std::string_view Text(std::size_t longest) { return Bytes(Byte() % (longest + 1)); }

    std::string_view Rest() { return Bytes(rest_.size()); }

  private:
    std::string_view rest_;
};
