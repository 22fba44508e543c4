// Memory that an input port's messages go into, as the classic service wants it: a block has a handle from
// the time it is made, an address while it is locked, and its pages can be kept in memory so that writing
// into it never waits for the disk.
//
//      Block_Make  Block_Lock  Block_Page_Lock        Block_Page_Unlock  Block_Unlock  Block_Free
//
// Handles and addresses are numbers of 32 bits on every machine; 0 is none.
// Bodies: port_blocks.cpp and tests/fakes/fake_midi_port.cpp (which tells the order of the calls).
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

using Block_Handle = std::int32_t;
using Block_Address = std::int32_t;

// A block of zeros.
Block_Handle Block_Make(std::size_t size);
Block_Address Block_Lock(Block_Handle handle);
void Block_Page_Lock(Block_Handle handle);

void Block_Page_Unlock(Block_Handle handle);
void Block_Unlock(Block_Handle handle);
void Block_Free(Block_Handle handle);

// The bytes of the locked block at that address. Empty where there is none.
std::span<char> Block_At(Block_Address address);

// A record in the block at that address. Null where there is none or it is too small.
template <class Record>
Record* Block_Record(Block_Address address) {
    const std::span<char> bytes = Block_At(address);
    return bytes.size() < sizeof(Record) ? nullptr : reinterpret_cast<Record*>(bytes.data());
}
