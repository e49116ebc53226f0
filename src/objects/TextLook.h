#pragma once
// TextLook: the look of a kind's text (the String, the Textbox, the Field),
// on top of the kind's own base: one of the device's two fonts, a font
// colour and a background colour, each held as the word its record carries,
// with their setters. A change of font lays the object out again, as the
// font sets the height of its text.
#include <string>

#include "canvas/DrawElement.h"
#include "document/Words.h"

namespace tolva {

// The grey of the screen for a colour word: "COLOR_WHITE", "COLOR_GREY1",
// "COLOR_GREY2", and black for "COLOR_BLACK" and any other word.
DrawColor ScreenColorOfWord(const std::string& word);

template <class Base>
class TextLook : public Base {
public:
    using Base::Base;

    // 0 "SMALL_FONT", 1 "MEDIUM_FONT"; the layout is redone either way.
    int KOMAFont() const { return FontFromWord(fontWord_); }
    void KOMAFont(int font) {
        if (font == 0 || font == 1) fontWord_ = WordFromFont(font);
        this->LayOut();
    }
    const std::string& KOMAFontWord() const { return fontWord_; }
    // Colours 0, 7, 11, 15; another number changes nothing.
    int KOMAFontColor() const { return ColorFromWord(fontColorWord_); }
    void KOMAFontColor(int color) {
        if (IsDeviceColor(color)) fontColorWord_ = WordFromColor(color);
    }
    const std::string& KOMAFontColorWord() const { return fontColorWord_; }
    int KOMABackColor() const { return ColorFromWord(backColorWord_); }
    void KOMABackColor(int color) {
        if (IsDeviceColor(color)) backColorWord_ = WordFromColor(color);
    }
    const std::string& KOMABackColorWord() const { return backColorWord_; }

protected:
    // The device font of the font word, as the canvas draws it.
    DrawFont ScreenFont() const {
        return DrawFont{ScreenFontOfWord(fontWord_), ScreenFontSizeOfWord(fontWord_), false};
    }
    DrawColor ScreenFontColor() const { return ScreenColorOfWord(fontColorWord_); }
    DrawColor ScreenBackColor() const { return ScreenColorOfWord(backColorWord_); }

    void CopyTextLookFrom(const TextLook& other) {
        fontWord_ = other.fontWord_;
        fontColorWord_ = other.fontColorWord_;
        backColorWord_ = other.backColorWord_;
    }

    std::string fontWord_ = "SMALL_FONT";
    std::string fontColorWord_ = "COLOR_BLACK";
    std::string backColorWord_ = "COLOR_WHITE";
};

}  // namespace tolva
