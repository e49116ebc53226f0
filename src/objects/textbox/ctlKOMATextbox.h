#pragma once
// ctlKOMATextbox: a one-line text entry on a form. Most of its record is the
// device's run-time state of the entry (character positions, highlight,
// insert point), which the editor only stores and passes on: of all its
// values only the text, the style and the font change the drawing.
#include <string>

#include "document/KomaObject.h"
#include "objects/EntryState.h"
#include "objects/TextLook.h"

namespace tolva {

class ctlKOMATextbox : public EntryState<TextLook<KomaObject>> {
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

    // The first and last characters shown, beside the insert point and
    // highlight: kept as given whatever the text.
    int KOMALeftCharPos() const { return leftCharPos_; }
    void KOMALeftCharPos(int position) { leftCharPos_ = position; }
    int KOMARightCharPos() const { return rightCharPos_; }
    void KOMARightCharPos(int position) { rightCharPos_ = position; }

    // What lblText shows: the text and a hundred full stops after it.
    std::string ShownText() const;

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (TextboxCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (TextboxRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // shpShadow, shpBorder and lblText as last laid out (TextboxDrawing.cpp).
    DrawElementList GetDrawElements() const override;

protected:
    void LayOut() override;

private:
    std::string text_ = "Textbox Text";
    std::string styleWord_ = "TEXTBOX_STYLE_0";
    std::string backlineWord_ = "DOT_LINE";
    int leftCharPos_ = 0;
    int rightCharPos_ = -1;

    // The last layout, in screen units.
    bool shadowShown_ = false;
    CanvasRect shadow_;
    bool borderShown_ = false;
    CanvasRect border_;
    CanvasRect label_{30, 10, 65255, 25 * 14};
};

}  // namespace tolva
