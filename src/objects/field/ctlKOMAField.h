#pragma once
// ctlKOMAField: a multi-line text area on a form, and the one simple object
// that lays its text out as the device does: wrapped against the width
// table of its font, from its top line on, one text box to a line, with a
// line under every row. Its device state (insert point, highlight, flags)
// is stored and passed on. Line breaks typed in its text go to the record
// as "/r" and break nothing on the screen, as on the device.
#include <string>
#include <vector>

#include "document/KomaObject.h"
#include "objects/EntryState.h"
#include "objects/TextLook.h"

namespace tolva {

class ctlKOMAField : public EntryState<TextLook<KomaObject>> {
public:
    static constexpr int kRowCount = 25;

    ctlKOMAField();

    // Any text; the field is laid out again.
    const std::string& KOMAText() const { return text_; }
    void KOMAText(const std::string& text);
    // 0 "FIELD_STYLE_0", 1 "FIELD_STYLE_1"; another number changes nothing.
    int KOMAFieldStyle() const;
    void KOMAFieldStyle(int style);
    const std::string& KOMAFieldStyleWord() const { return styleWord_; }
    // 0 "NO_LINE", 1 "DOT_LINE", 2 "GREY_LINE"; another number changes
    // nothing.
    int KOMABackline() const;
    void KOMABackline(int line);
    const std::string& KOMABacklineWord() const { return backlineWord_; }
    // 0 "LEFT", 1 "CENTRE", 2 "RIGHT"; another number changes nothing.
    int KOMATextAlignment() const;
    void KOMATextAlignment(int alignment);
    const std::string& KOMATextAlignmentWord() const { return alignmentWord_; }
    // The first line shown, from 0. The layout pulls one beyond the last
    // line back to the last, and that is the value kept.
    int KOMATopLineNum() const { return topLineNum_; }
    void KOMATopLineNum(int line);


    // Two flags of the Field's own beside those of every entry, held as
    // "TRUE" or "FALSE".
    bool KOMAScrollbar() const { return scrollbarWord_ == "TRUE"; }
    void KOMAScrollbar(bool value) { scrollbarWord_ = FlagWord(value); }
    bool KOMAFullSize() const { return fullSizeWord_ == "TRUE"; }
    void KOMAFullSize(bool value) { fullSizeWord_ = FlagWord(value); }
    const std::string& KOMAScrollbarWord() const { return scrollbarWord_; }
    const std::string& KOMAFullSizeWord() const { return fullSizeWord_; }

    // The last layout: every line of the wrapped text, and the lines shown
    // from the top line on.
    const std::vector<std::string>& WrappedLines() const { return lines_; }
    std::vector<std::string> ShownLines() const;
    // The available width of the last layout, in device pixels.
    int AvailableWidth() const { return availableWidth_; }

    // The Field Editor on the text: on OK the text is the edited one.
    void EditField();

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The members a cell takes (FieldCellCopy.cpp).
    bool CopyCellMembersFrom(const KomaObject& other) override;
    // The record and a loaded record applied (FieldRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The background, the shown lines, the base lines and the frame, as last
    // laid out (FieldDrawing.cpp).
    DrawElementList GetDrawElements() const override;
    // The right button opens "Set Properties" with "Edit Field...".
    void MouseDown(int button, int shift, double x, double y) override;

protected:
    void LayOut() override;

private:
    std::size_t FirstShownLine() const;

    std::string text_ = "Field text";
    std::string styleWord_ = "FIELD_STYLE_0";
    std::string backlineWord_ = "DOT_LINE";
    std::string alignmentWord_ = "LEFT";
    int topLineNum_ = 0;
    std::string scrollbarWord_ = "FALSE";
    std::string fullSizeWord_ = "FALSE";

    // The last layout.
    int availableWidth_ = 0;
    std::vector<std::string> lines_{""};
};

}  // namespace tolva
