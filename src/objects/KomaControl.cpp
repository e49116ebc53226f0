#include "objects/KomaControl.h"

#include "document/Numbers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/Banners.h"

namespace tolva {

KomaControl::KomaControl(int screenType, int controlStyle, const std::string& controlStyleWord,
                         int defaultWidth, int defaultHeight)
    : KomaObject(screenType, "CONTROL", defaultWidth, defaultHeight),
      ownControlStyle_(controlStyle),
      ownControlStyleWord_(controlStyleWord),
      controlStyleWord_(controlStyleWord) {}

int KomaControl::KOMAControlStyle() {
    if (controlStyleWord_ == ownControlStyleWord_) return ownControlStyle_;
    if (controlStyleWord_ == "0") Message("Unknown control style", "KOMAControlStyle");
    return 0;
}

void KomaControl::KOMAControlStyle(int style) {
    if (style == ownControlStyle_) {
        controlStyleWord_ = ownControlStyleWord_;
    } else if (style == 0) {
        Message("Unknown control style", "KOMAControlStyle");
    }
}

void KomaControl::KOMAControlText(const std::string& text) {
    controlText_ = text;
    LayOut();
}

int KomaControl::KOMATextAlignment() const { return AlignmentFromWord(alignmentWord_); }

void KomaControl::KOMATextAlignment(int alignment) {
    if (alignment < 0 || alignment > 2) return;
    alignmentWord_ = WordFromAlignment(alignment);
    LayOut();
}

void KomaControl::KOMARelatedTableID(long id) {
    // The test looks at the value held before the assignment.
    if (KOMARelatedTableID() < 0) {
        Message("Invalid value", "KOMARelatedTableID");
        return;
    }
    StoreRelatedTableID(id);
}

bool KomaControl::CopyModelFrom(const KomaObject& other) {
    const auto* control = dynamic_cast<const KomaControl*>(&other);
    if (!control || !KomaObject::CopyModelFrom(other)) return false;
    controlStyleWord_ = control->controlStyleWord_;
    subtypeWord_ = control->subtypeWord_;
    controlText_ = control->controlText_;
    alignmentWord_ = control->alignmentWord_;
    enableWord_ = control->enableWord_;
    activeWord_ = control->activeWord_;
    visibleWord_ = control->visibleWord_;
    return true;
}

void KomaControl::CopyCellHeadFrom(const KomaControl& other) {
    CopyCellPlaceFrom(other);
    subtypeWord_ = other.subtypeWord_;
    controlText_ = other.controlText_;
    alignmentWord_ = other.alignmentWord_;
    enableWord_ = other.enableWord_;
    activeWord_ = other.activeWord_;
    visibleWord_ = other.visibleWord_;
}

void KomaControl::AppendControlHead(LineList& lines, const HeadComments& comments) const {
    AppendRecordBanner(lines, KOMAName(), true);
    AppendHeadA(lines, *this, "#CONTROL", comments.size);
    if (!comments.style.empty()) lines.push_back(comments.style);
    lines.push_back("(B)CONTROL_STYLE=" + controlStyleWord_);
    lines.push_back("~F4");
    lines.push_back(comments.subtype);
    lines.push_back("(B)CONTROL_SUBTYPE=" + subtypeWord_);
    lines.push_back("~F5");
    if (!comments.text.empty()) lines.push_back(comments.text);
    lines.push_back("(S)CONTROL_TEXT=" + controlText_);
    lines.push_back("~F6");
    lines.push_back("//LEFT,CENTRE,RIGHT");
    lines.push_back("(B)TEXTMENT=" + alignmentWord_);
    lines.push_back("~F7");
    if (!comments.attributes.empty()) lines.push_back(comments.attributes);
    lines.push_back("(BO)CONTROL_ATTR.ENABLE=" + enableWord_);
    lines.push_back("(BO)CONTROL_ATTR.ACTIVE=" + activeWord_);
    lines.push_back("(BO)CONTROL_ATTR.VISIBLE=" + visibleWord_);
}

void KomaControl::ApplyControlHeadGroups(const GroupList& groups) {
    const double scale = PCTwipsToTolvaPixels();
    KOMAName(groups[0][0]);
    KOMABoundsX(ToInt16(groups[1][0]));
    KOMABoundsY(ToInt16(groups[1][1]));
    SetCanvasSize(ToInt16(groups[1][2]) * scale, ToInt16(groups[1][3]) * scale);
    ApplySubTypeWord(groups[2].empty() ? "" : groups[2][0]);
    KOMAControlText(groups[3].empty() ? "" : groups[3][0]);
    KOMATextAlignment(AlignmentFromWord(groups[4].empty() ? "" : groups[4][0]));
    KOMAEnable(BooleanFromWord(groups[5][0]) != 0);
    KOMAActive(BooleanFromWord(groups[5][1]) != 0);
    KOMAVisible(BooleanFromWord(groups[5][2]) != 0);
}

}  // namespace tolva
