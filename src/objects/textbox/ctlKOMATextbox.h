#pragma once
// ctlKOMATextbox: a one-line text entry on a form. Most of its record is the
// device's run-time state of the entry (character positions, highlight,
// insert point), which the editor only stores and passes on: of all its
// values only the text, the style and the font change the drawing.
#include <string>

#include "document/KomaObject.h"
#include "objects/TextLook.h"

namespace tolva {

class ctlKOMATextbox : public TextLook<KomaObject> {
public:
    static constexpr int kRowCount = 23;

    ctlKOMATextbox();

    const std::string& KOMAText() const { return text_; }
    void KOMAText(const std::string& text) { text_ = text; }
    // 0 to 2 "TEXTBOX_STYLE_0" ... "TEXTBOX_STYLE_2"; another number changes
    // nothing.
    int KOMATextboxStyle() const;
    void KOMATextboxStyle(int style);
    const std::string& KOMATextboxStyleWord() const { return styleWord_; }
    // 0 "NO_LINE", 1 "DOT_LINE", 2 "GREY_LINE"; another number changes
    // nothing.
    int KOMABackline() const;
    void KOMABackline(int line);
    const std::string& KOMABacklineWord() const { return backlineWord_; }

    // The longest text, 0 or more: a negative one is refused with "Invalid
    // value" under the application's title.
    int KOMAMaxNumChars() const { return maxNumChars_; }
    void KOMAMaxNumChars(int count);
    // The device's positions in the text, kept as given whatever the text.
    int KOMALeftCharPos() const { return leftCharPos_; }
    void KOMALeftCharPos(int position) { leftCharPos_ = position; }
    int KOMARightCharPos() const { return rightCharPos_; }
    void KOMARightCharPos(int position) { rightCharPos_ = position; }
    int KOMAInsertPointCharPos() const { return insertPointCharPos_; }
    void KOMAInsertPointCharPos(int position) { insertPointCharPos_ = position; }
    int KOMAHighlightStartCharPos() const { return highlightStart_; }
    void KOMAHighlightStartCharPos(int position) { highlightStart_ = position; }
    int KOMAHighlightEndCharPos() const { return highlightEnd_; }
    void KOMAHighlightEndCharPos(int position) { highlightEnd_ = position; }

    // The six flags, held as "TRUE" or "FALSE".
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = Word(value); }
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = Word(value); }
    bool KOMADirty() const { return dirtyWord_ == "TRUE"; }
    void KOMADirty(bool value) { dirtyWord_ = Word(value); }
    bool KOMAHighlight() const { return highlightWord_ == "TRUE"; }
    void KOMAHighlight(bool value) { highlightWord_ = Word(value); }
    bool KOMAInsertPointVisible() const { return insertPointVisibleWord_ == "TRUE"; }
    void KOMAInsertPointVisible(bool value) { insertPointVisibleWord_ = Word(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = Word(value); }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMADirtyWord() const { return dirtyWord_; }
    const std::string& KOMAHighlightWord() const { return highlightWord_; }
    const std::string& KOMAInsertPointVisibleWord() const { return insertPointVisibleWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // What lblText shows: the text and a hundred full stops after it.
    std::string ShownText() const;

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The record and a loaded record applied (TextboxRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // shpShadow, shpBorder and lblText as last laid out (TextboxDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void LayOut() override;

private:
    static const char* Word(bool value) { return value ? "TRUE" : "FALSE"; }

    std::string text_ = "Textbox Text";
    std::string styleWord_ = "TEXTBOX_STYLE_0";
    std::string backlineWord_ = "DOT_LINE";
    int maxNumChars_ = 256;
    int leftCharPos_ = 0;
    int rightCharPos_ = -1;
    int insertPointCharPos_ = 0;
    int highlightStart_ = 0;
    int highlightEnd_ = 0;
    std::string activeWord_ = "TRUE";
    std::string enableWord_ = "TRUE";
    std::string dirtyWord_ = "FALSE";
    std::string highlightWord_ = "FALSE";
    std::string insertPointVisibleWord_ = "FALSE";
    std::string visibleWord_ = "TRUE";

    // The last layout, in screen units.
    bool shadowShown_ = false;
    CanvasRect shadow_;
    bool borderShown_ = false;
    CanvasRect border_;
    CanvasRect label_{30, 10, 65255, 25 * 14};
};

}  // namespace tolva
