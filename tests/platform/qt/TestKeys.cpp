#include <gtest/gtest.h>

#include "controls/Control.h"
#include "platform/qt/Keys.h"

namespace {

TEST(Keys, EveryNamedKeyHasItsVirtualCode) {
    struct Case {
        int key;
        int code;
    };
    const Case cases[] = {
        {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},       {Qt::Key_Escape, 27},
        {Qt::Key_Delete, 46},      {Qt::Key_Space, 32},       {Qt::Key_Left, 37},
        {Qt::Key_Down, 40},        {Qt::Key_A, 65},           {Qt::Key_Z, 90},
        {Qt::Key_5, 53},           {Qt::Key_F1, 112},         {Qt::Key_F12, 123},
        {Qt::Key_Back, 166},       {Qt::Key_Forward, 167},    {Qt::Key_Refresh, 168},
        {Qt::Key_HomePage, 172},   {Qt::Key_VolumeMute, 173}, {Qt::Key_VolumeDown, 174},
        {Qt::Key_VolumeUp, 175},   {Qt::Key_MediaNext, 176},  {Qt::Key_MediaPrevious, 177},
        {Qt::Key_MediaStop, 178},  {Qt::Key_MediaPlay, 179},  {Qt::Key_MediaTogglePlayPause, 179},
        {Qt::Key_MediaPause, 179}, {Qt::Key_Reload, 168},
    };

    for (const Case& one : cases)
        EXPECT_EQ(qt::KeyCode(one.key), one.code) << one.key;
}

TEST(Keys, MultimediaKeysMeanTheProgram) {
    for (const int code : {166, 167, 168, 172, 173, 174, 175, 176, 177, 178, 179})
        EXPECT_TRUE(qt::IsMediaKey(code)) << code;
    for (const int code : {0, 13, 65, 116, 165, 169, 170, 171, 180, 181})
        EXPECT_FALSE(qt::IsMediaKey(code)) << code;
}

TEST(Keys, WhatTheWindowLooksAtFirstHasControlOrAltOrIsAFunctionKeyOrEscape) {
    EXPECT_TRUE(qt::MayMeanWindow('T', controls::kControlMask));
    EXPECT_TRUE(qt::MayMeanWindow(37, controls::kAltMask));
    EXPECT_TRUE(qt::MayMeanWindow(112, 0));
    EXPECT_TRUE(qt::MayMeanWindow(135, controls::kShiftMask));
    EXPECT_TRUE(qt::MayMeanWindow(27, 0));
    EXPECT_FALSE(qt::MayMeanWindow('T', 0));
    EXPECT_FALSE(qt::MayMeanWindow('T', controls::kShiftMask));
    EXPECT_FALSE(qt::MayMeanWindow(136, 0));
    EXPECT_FALSE(qt::MayMeanWindow(0, controls::kControlMask));
}

TEST(Keys, PlusAndMinusHaveCodesInTheRowOfDigitsAndOnTheNumberPad) {
    EXPECT_EQ(qt::KeyCode(Qt::Key_Plus), 187);
    EXPECT_EQ(qt::KeyCode(Qt::Key_Equal), 187);
    EXPECT_EQ(qt::KeyCode(Qt::Key_Minus), 189);
    EXPECT_EQ(qt::KeyCode(Qt::Key_Plus, Qt::KeypadModifier), 107);
    EXPECT_EQ(qt::KeyCode(Qt::Key_Minus, Qt::KeypadModifier), 109);
}

TEST(Keys, ADigitOfTheNumberPadHasACodeOfItsOwn) {
    EXPECT_EQ(qt::KeyCode(Qt::Key_5, Qt::KeypadModifier), 101);
}

TEST(Keys, AKeyWithoutACodeIsZero) {
    EXPECT_EQ(qt::KeyCode(Qt::Key_Hiragana), 0);
}

TEST(Keys, ShiftStatesAddUp) {
    EXPECT_EQ(qt::ShiftState(Qt::ShiftModifier | Qt::AltModifier), controls::kShiftMask | controls::kAltMask);
    EXPECT_EQ(qt::ShiftState(Qt::ControlModifier), controls::kControlMask);
    EXPECT_EQ(qt::ShiftState(Qt::KeypadModifier), 0);
}

TEST(Keys, ButtonsAddUp) {
    EXPECT_EQ(qt::ButtonNumber(Qt::RightButton), controls::kRightButton);
    EXPECT_EQ(qt::ButtonNumbers(Qt::LeftButton | Qt::MiddleButton),
              controls::kLeftButton | controls::kMiddleButton);
}

}  // namespace
