#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "win32/DialogBuilder.h"
#include "win32/DialogTemplate.h"
#include "win32/Win32.h"

namespace {

TEST(DialogTemplate, IsReadWholeAndRefusedWhenItIsCutAnywhere) {
    win32::DialogBuilder form("Gr\xF6\xDF\x65 \x80", WS_POPUP, {1, 2, 30, 40}, WS_EX_TOOLWINDOW);
    form.Edit(7, {3, 4, 50, 6}).Static(-1, "odd", {1, 1, 1, 1});
    const auto* head = reinterpret_cast<const unsigned char*>(form.Template());
    std::vector<unsigned char> bytes;
    std::optional<win32::DialogDescription> read;
    while (!read && bytes.size() < 400) {
        // A buffer of just this size, so that a byte read too many is found.
        bytes = std::vector<unsigned char>(head, head + bytes.size() + 1);
        read = win32::ReadTemplate(bytes.data(), bytes.size());
    }
    ASSERT_TRUE(read);
    // 30 head, 16 title, 6 and 26 font; 24, class, text and 2 each control; on multiples of 4.
    EXPECT_EQ(bytes.size(), 168U);
    EXPECT_EQ(read->dialog.text, "Gr\xF6\xDF\x65 \x80");
    EXPECT_EQ(read->dialog.exStyle, WS_EX_TOOLWINDOW);
    EXPECT_EQ(read->dialog.place.right, 31);
    ASSERT_EQ(read->controls.size(), 2U);
    EXPECT_EQ(read->controls[0].className, "Edit");
    EXPECT_EQ(read->controls[0].place.bottom, 10);
    EXPECT_EQ(read->controls[1].id, -1);
    EXPECT_EQ(read->controls[1].text, "odd");
    bytes[2] = 0;  // the signature of an extended template
    EXPECT_FALSE(win32::ReadTemplate(bytes.data(), bytes.size()));
    EXPECT_FALSE(win32::ReadTemplate(nullptr, 0));
}

TEST(DialogTemplate, WithAnUnknownClassMakesNoDialog) {
    win32::DialogBuilder form("Unknown", WS_POPUP, {0, 0, 30, 40});
    form.Edit(7, {3, 4, 50, 6}).Control("NoSuchClass", 8, "", WS_VISIBLE, {0, 0, 1, 1});
    EXPECT_EQ(CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_CANNOT_FIND_WND_CLASS);
}

}  // namespace
