#pragma once
// ctlKOMASchedulerLine: the device's scheduler strip, a fixed header of
// hours over eight ruled lines at a pitch of 12 pixels. Of its model only
// the place and size show; it holds three flags besides.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMASchedulerLine : public KomaObject {
public:
    static constexpr int kRowCount = 8;

    ctlKOMASchedulerLine();

    // The three flags, held as "TRUE" or "FALSE".
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = Word(value); }
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = Word(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = Word(value); }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // --- the contract --------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    bool CopyModelFrom(const KomaObject& other) override;
    // The record and a loaded record applied (SchedulerLineRecord.cpp).
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The header of hours and the eight ruled lines (SchedulerLineDrawing.cpp).
    DrawElementList GetDrawElements() const override;

private:
    static const char* Word(bool value) { return value ? "TRUE" : "FALSE"; }

    std::string enableWord_ = "TRUE";
    std::string activeWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
