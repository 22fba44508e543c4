#include "platform/port_blocks.h"

#include <sys/mman.h>

#include <map>
#include <memory>

namespace {

// Addresses differ from handles, so that one taken for the other is found out at once.
constexpr Block_Address First_Address = 0x10000;

struct Block {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
    bool locked = false;
};

struct Blocks_State {
    std::map<Block_Handle, Block> blocks;
    Block_Handle last_handle = 0;
};

Blocks_State State;

Block* Block_Of(Block_Handle handle) {
    const auto found = State.blocks.find(handle);
    return found == State.blocks.end() ? nullptr : &found->second;
}

}  // namespace

Block_Handle Block_Make(std::size_t size) {
    State.blocks[++State.last_handle] = {std::make_unique<char[]>(size), size};
    return State.last_handle;
}

Block_Address Block_Lock(Block_Handle handle) {
    Block* const block = Block_Of(handle);
    if (block == nullptr) return 0;
    block->locked = true;
    return First_Address + handle;
}

// A system that keeps no more pages for this user is no failure: the block is then as any other memory.
void Block_Page_Lock(Block_Handle handle) {
    if (const Block* const block = Block_Of(handle)) (void)mlock(block->bytes.get(), block->size);
}

void Block_Page_Unlock(Block_Handle handle) {
    if (const Block* const block = Block_Of(handle)) (void)munlock(block->bytes.get(), block->size);
}

void Block_Unlock(Block_Handle handle) {
    if (Block* const block = Block_Of(handle)) block->locked = false;
}

void Block_Free(Block_Handle handle) {
    State.blocks.erase(handle);
}

std::span<char> Block_At(Block_Address address) {
    const Block* const block = Block_Of(address - First_Address);
    if (block == nullptr || !block->locked) return {};
    return {block->bytes.get(), block->size};
}
