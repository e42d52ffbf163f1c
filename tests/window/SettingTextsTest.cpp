#include "window/SettingTexts.h"

#include "support/TestSupport.h"
#include "util/Settings.h"

#include <gtest/gtest.h>

#include <algorithm>

// Whoever adds a setting, or a value of one, has the window show it.
TEST(SettingTexts, EverySettingThatMeansSomethingHasItsWords)
{
    const QStringList kept = list("lastSyncSize lastFreeSpace");
    const QStringList unused = list("useQuickTime regCheckForUpdates");
    for (const Settings::Key &key : Settings::keys()) {
        const auto &all = SettingTexts::all();
        const auto count = std::ranges::count(all, key.name, &SettingTexts::Text::key);
        ASSERT_EQ(count, kept.contains(key.name) || unused.contains(key.name) ? 0 : 1)
            << qPrintable(key.name);
        if (count == 0)
            continue;
        const SettingTexts::Text &text = SettingTexts::of(key.name);
        const auto values = static_cast<qint64>(text.choices.size());
        const bool isOpen = key.range.most == Settings::Range{}.most;
        EXPECT_TRUE(values == 0 || isOpen || values == key.range.most - key.range.least + 1)
            << qPrintable(key.name);
        EXPECT_FALSE(SettingTexts::valueText(text, key.defaultValue).startsWith(u"Another"))
            << qPrintable(key.name);
    }
}
