#pragma once

#include "reader/settings/Settings.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// The settings file of these tests, and its first line.
inline constexpr const char* Ini = "/ini/LSAdvisor.INI";
inline constexpr const char* Signature = "LSADVISOR V5.3 INI";

/// The recent files, without unused places.
[[nodiscard]] inline Strings Recent(const Settings& settings)
{
    return {settings.RecentFiles.begin(), settings.RecentFiles.begin() + settings.RecentFileCount};
}

/// Settings in the folder "/ini" of a file system in memory.
struct SettingsTest : testing::Test
{
    test::TestSeams world;
    Settings settings;

    void SetUp() override
    {
        world.files.AddFolder("/ini");
        settings.IniDir = "/ini";
    }

    void Load() { LoadSettings(settings, world.Get()); }
    void Save() { SaveIniFile(settings, world.Get()); }

    void SetRecent(std::initializer_list<const char*> paths)
    {
        for (const char* path : paths) {
            settings.RecentFiles[static_cast<std::size_t>(settings.RecentFileCount)] = path;
            ASSERT_TRUE(settings.RecentFileCount.Add());
        }
    }

    void FailAt(const std::string& operation, int number)
    {
        world.files.fail = [operation, number](const std::string& asked) {
            return asked.starts_with(operation) ? number : 0;
        };
    }
};

} // namespace ls
