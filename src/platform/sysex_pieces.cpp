#include "platform/sysex_pieces.h"

namespace {

constexpr unsigned char Begin = 0xF0;
constexpr unsigned char End = 0xF7;
constexpr unsigned char First_Status = 0x80;
constexpr unsigned char First_Real_Time = 0xF8;

// How many data bytes follow a status that is neither of the two above nor real time.
int Data_Bytes_Of(unsigned char status) {
    if (status < Begin) return status >= 0xC0 && status < 0xE0 ? 1 : 2;
    if (status == 0xF2) return 2;
    return status == 0xF1 || status == 0xF3 ? 1 : 0;
}

}  // namespace

Sysex_Pieces::Sysex_Pieces(std::size_t longest) : bytes_(longest) {}

Sysex_Pieces::Found Sysex_Pieces::Take(unsigned char byte) {
    if (byte >= First_Real_Time) return Found::Nothing;
    if (byte == Begin) {
        size_ = 0;
        foreign_data_ = 0;
        inside_ = true;
        return Append(byte);
    }
    if (!inside_) return Found::Nothing;
    if (byte == End) {
        const Found found = Append(byte);
        inside_ = false;
        return found == Found::Refused ? found : Found::Message;
    }
    if (byte >= First_Status) {
        foreign_data_ = Data_Bytes_Of(byte);
        return Found::Nothing;
    }
    if (foreign_data_ > 0) {
        --foreign_data_;
        return Found::Nothing;
    }
    return Append(byte);
}

Sysex_Pieces::Found Sysex_Pieces::Append(unsigned char byte) {
    if (size_ == bytes_.size()) {
        inside_ = false;
        return Found::Refused;
    }
    bytes_[size_++] = static_cast<char>(byte);
    return Found::Nothing;
}
