#include "platform/mounts.h"

#include <gtest/gtest.h>

using Lines = std::vector<std::string>;

TEST(The_Mounts, play_drives_where_they_hold_a_users_files) {
    EXPECT_EQ(Volumes_In("/dev/sda2 / ext4 rw,relatime 0 0\n"
                         "/dev/sdb1 /media/anna/STICK vfat rw 0 0\n"
                         "proc /proc proc rw 0 0\n"
                         "tmpfs /tmp tmpfs rw 0 0\n"
                         "/dev/sda1 /boot/efi vfat rw 0 0\n"
                         "/dev/loop3 /snap/core/1 squashfs ro 0 0\n"
                         "tmpfs /run/user/1000 tmpfs rw 0 0\n"
                         "/dev/sdc1 /run/media/anna/CARD exfat rw 0 0\n"
                         "/dev/md0 /var/lib/docker ext4 rw 0 0\n"
                         "server:/tones /home/anna/tones nfs4 rw 0 0\n"
                         "//nas/share /mnt/share cifs rw 0 0\n"),
              (Lines{"/", "/home/anna/tones", "/media/anna/STICK", "/mnt/share", "/run/media/anna/CARD"}));
}

TEST(The_Mounts, may_have_blanks_and_odd_letters_in_their_names) {
    EXPECT_EQ(
        Volumes_In("/dev/sdb1 /media/MY\\040TONES vfat rw 0 0\n/dev/sdc1 /media/a\\134b vfat rw 0 0\n"),
        (Lines{"/", "/media/MY TONES", "/media/a\\b"}));
}

TEST(The_Mounts, count_once_each_and_the_root_is_always_there) {
    EXPECT_EQ(Volumes_In("/dev/sdb1 /mnt/a vfat rw 0 0\n/dev/sdb2 /mnt/a ext4 rw 0 0\n"),
              (Lines{"/", "/mnt/a"}));
    EXPECT_EQ(Volumes_In(""), Lines{"/"});
}

TEST(The_Mounts, survive_a_list_that_is_none) {
    for (const char* text :
         {"\n\n", "x", "/dev/x", "/dev/x relative ext4", "/dev/x /mnt/\\0 ext4 rw", "\\777"}) {
        EXPECT_EQ(Volumes_In(text).front(), "/") << text;
    }
    EXPECT_EQ(Volumes_In("/dev/x relative ext4 rw"), Lines{"/"});
}
