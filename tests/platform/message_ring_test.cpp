// The ring between the thread that hears and the thread that works.
#include "platform/message_ring.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

TEST(Message_Ring_, gives_back_what_was_put_in_in_order) {
    Message_Ring ring(64);
    std::string message = "old";
    EXPECT_FALSE(ring.Take(message));
    EXPECT_EQ(message, "old");
    EXPECT_TRUE(ring.Put("one"));
    EXPECT_TRUE(ring.Put(std::string("t\0o", 3)));
    EXPECT_TRUE(ring.Take(message));
    EXPECT_EQ(message, "one");
    EXPECT_TRUE(ring.Take(message));
    EXPECT_EQ(message, std::string("t\0o", 3));
    EXPECT_FALSE(ring.Take(message));
}

TEST(Message_Ring_, refuses_what_has_no_room_and_keeps_what_it_holds) {
    Message_Ring ring(64);
    EXPECT_FALSE(ring.Put(std::string(61, 'x')));
    EXPECT_TRUE(ring.Put(std::string(28, 'a')));
    EXPECT_FALSE(ring.Put(std::string(29, 'b')));
    EXPECT_TRUE(ring.Put(std::string(28, 'c'))) << "full to the last byte";
    EXPECT_FALSE(ring.Put(""));
    std::string message;
    EXPECT_TRUE(ring.Take(message));
    EXPECT_EQ(message, std::string(28, 'a'));
    EXPECT_TRUE(ring.Put("again"));
    EXPECT_TRUE(ring.Take(message));
    EXPECT_EQ(message, std::string(28, 'c'));
    EXPECT_TRUE(ring.Take(message));
    EXPECT_EQ(message, "again");
}

TEST(Message_Ring_, runs_round_at_every_place) {
    Message_Ring ring(64);
    std::string message;
    for (std::size_t count = 0; count < 500; ++count) {
        const std::string sent(count % 60, static_cast<char>('a' + count % 26));
        ASSERT_TRUE(ring.Put(sent));
        ASSERT_TRUE(ring.Take(message));
        ASSERT_EQ(message, sent);
    }
}

TEST(Message_Ring_, loses_and_mixes_nothing_between_two_threads) {
    constexpr int Count = 100000;
    Message_Ring ring(1024);
    const auto numbered = [](int number) {
        return std::string(static_cast<std::size_t>(number % 70), 'x') + std::to_string(number);
    };
    std::thread sender([&] {
        for (int number = 0; number < Count; ++number) {
            while (!ring.Put(numbered(number))) std::this_thread::yield();
        }
    });
    std::string message;
    int wrong = 0;
    for (int number = 0; number < Count; ++number) {
        while (!ring.Take(message)) std::this_thread::yield();
        if (message != numbered(number)) ++wrong;
    }
    sender.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_FALSE(ring.Take(message));
}
