#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "win32/DialogBuilder.h"
#include "win32/DialogTemplate.h"
#include "win32/Win32.h"

namespace {

std::vector<unsigned char> Bytes(const win32::DialogBuilder& form, std::size_t size) {
    std::vector<unsigned char> bytes(size);
    if (size > 0) std::memcpy(bytes.data(), form.Template(), size);
    return bytes;
}

TEST(DialogTemplate, GivesBackWhatTheBuilderWrote) {
    win32::DialogBuilder form("Gr\xF6\xDF\x65 \x80", WS_POPUP, {1, 2, 30, 40}, WS_EX_TOOLWINDOW);
    form.Edit(7, {3, 4, 50, 6}, ES_NUMBER).Static(-1, "odd", {1, 1, 1, 1});
    const auto read = win32::ReadTemplate(form.Template(), 4096);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->dialog.text, "Gr\xF6\xDF\x65 \x80");
    EXPECT_EQ(read->dialog.exStyle, WS_EX_TOOLWINDOW);
    EXPECT_EQ(read->dialog.place.right, 31);
    ASSERT_EQ(read->controls.size(), 2U);
    EXPECT_EQ(read->controls[0].className, "Edit");
    EXPECT_EQ(read->controls[0].id, 7);
    EXPECT_EQ(read->controls[0].place.bottom, 10);
    EXPECT_EQ(read->controls[0].style & ES_NUMBER, ES_NUMBER);
    EXPECT_EQ(read->controls[1].id, -1);
    EXPECT_EQ(read->controls[1].text, "odd");
}

TEST(DialogTemplate, IsRefusedWhenItIsCutAnywhere) {
    win32::DialogBuilder form("Cut", WS_POPUP, {0, 0, 30, 40});
    form.Edit(7, {3, 4, 50, 6}).Button(1, "OK", {1, 1, 1, 1});
    std::size_t whole = 0;
    for (std::size_t size = 0; size < 400 && whole == 0; ++size) {
        // A buffer of just this size, so that a byte read too many is found.
        const auto bytes = Bytes(form, size);
        if (win32::ReadTemplate(bytes.data(), size)) whole = size;
    }
    // 30 head, 8 title, 6 and 26 font, with padding; 24 and texts each control.
    EXPECT_GT(whole, 150U);
    EXPECT_LT(whole, 170U);
    auto plain = Bytes(form, whole);
    plain[2] = 0;  // the signature of an extended template
    EXPECT_FALSE(win32::ReadTemplate(plain.data(), plain.size()));
    EXPECT_FALSE(win32::ReadTemplate(nullptr, 0));
}

TEST(DialogTemplate, WithAnUnknownClassMakesNoDialog) {
    win32::DialogBuilder form("Unknown", WS_POPUP, {0, 0, 30, 40});
    form.Edit(7, {3, 4, 50, 6}).Control("NoSuchClass", 8, "", WS_VISIBLE, {0, 0, 1, 1});
    EXPECT_EQ(CreateDialogIndirectParamA(nullptr, form.Template(), nullptr, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_CANNOT_FIND_WND_CLASS);
}

}  // namespace
