#include "platform/linux/LinuxVolumes.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Found = std::vector<Volume>;

TEST(LinuxVolumes, volumesOf_mountTable_keepsWhatAPersonWouldPick)
{
    const char* table = "/dev/sda1 / ext4 rw 0 0\n"
                        "proc /proc proc rw 0 0\n"
                        "/dev/sdb1 /media/anna/MY\\040STICK vfat rw 0 0\n"
                        "/dev/sdc1 /run/media/anna/disc iso9660 ro 0 0\n"
                        "/dev/sda2 /boot ext4 rw 0 0\n"
                        "/dev/sdd1 /mnt ext4 rw 0 0\n"
                        "/dev/sdd2 /mnt/a\\134b ext4 rw 0 0\n"
                        "/dev/sdb1 /media/anna/MY\\040STICK vfat rw 0 0\n"
                        "tmpfs /mntx tmpfs rw 0 0\n";
    EXPECT_EQ(VolumesOf(table, "/home/anna"), (Found{{"/", "/"},
                                                     {"/home/anna", "/home/anna"},
                                                     {"/media/anna/MY STICK", "/media/anna/MY STICK"},
                                                     {"/mnt", "/mnt"},
                                                     {"/mnt/a\\b", "/mnt/a\\b"},
                                                     {"/run/media/anna/disc", "/run/media/anna/disc"}}));
}

TEST(LinuxVolumes, volumesOf_brokenLines_arePassedOver)
{
    EXPECT_EQ(VolumesOf("", ""), (Found{{"/", "/"}}));
    EXPECT_EQ(VolumesOf("x\n\n /media/\nfoo /media/a\\04", "/"),
              (Found{{"/", "/"}, {"/media/a\\04", "/media/a\\04"}}));
}

TEST(LinuxVolumes, list_thisSystem_beginsWithItsRoot)
{
    LinuxVolumes volumes;
    const Found found = volumes.List();
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front(), (Volume{"/", "/"}));
}

} // namespace
} // namespace ls
