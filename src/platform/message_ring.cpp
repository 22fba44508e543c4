#include "platform/message_ring.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

using Length = std::uint32_t;

}  // namespace

// A power of two, so that the places stay right when the counts begin again at 0.
Message_Ring::Message_Ring(std::size_t bytes) : ring_(std::bit_ceil(bytes)) {}

bool Message_Ring::Put(std::string_view message) {
    const std::size_t written = written_.load(std::memory_order_relaxed);
    const std::size_t held = written - taken_.load(std::memory_order_acquire);
    const std::size_t wanted = sizeof(Length) + message.size();
    if (wanted > ring_.size() - held) return false;
    const auto length = static_cast<Length>(message.size());
    Write(written, {reinterpret_cast<const char*>(&length), sizeof length});
    Write(written + sizeof length, message);
    written_.store(written + wanted, std::memory_order_release);
    return true;
}

bool Message_Ring::Take(std::string& message) {
    const std::size_t taken = taken_.load(std::memory_order_relaxed);
    if (written_.load(std::memory_order_acquire) == taken) return false;
    Length length = 0;
    Read(taken, reinterpret_cast<char*>(&length), sizeof length);
    message.resize(length);
    Read(taken + sizeof length, message.data(), length);
    taken_.store(taken + sizeof length + length, std::memory_order_release);
    return true;
}

void Message_Ring::Write(std::size_t place, std::string_view bytes) {
    const std::size_t begin = place & (ring_.size() - 1);
    const std::size_t first = std::min(bytes.size(), ring_.size() - begin);
    std::memcpy(ring_.data() + begin, bytes.data(), first);
    std::memcpy(ring_.data(), bytes.data() + first, bytes.size() - first);
}

void Message_Ring::Read(std::size_t place, char* bytes, std::size_t size) const {
    const std::size_t begin = place & (ring_.size() - 1);
    const std::size_t first = std::min(size, ring_.size() - begin);
    std::memcpy(bytes, ring_.data() + begin, first);
    std::memcpy(bytes + first, ring_.data(), size - first);
}
