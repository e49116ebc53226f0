#include "objects/schedulerline/ctlKOMASchedulerLine.h"

#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"

namespace tolva {

ctlKOMASchedulerLine::ctlKOMASchedulerLine()
    : KomaObject(type::SchedulerLine, "SCHLINE", 40, 40) {}

void ctlKOMASchedulerLine::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(106), rowkind::Choice, enableWord_);
    rows.SetRow(7, PropertyLabel(107), rowkind::Choice, activeWord_);
    rows.SetRow(8, PropertyLabel(108), rowkind::Choice, visibleWord_);
}

bool ctlKOMASchedulerLine::SetPropertyList(const PropertyArray& rows) {
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMAEnable(BooleanFromWord(rows.Value(6).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(7).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(8).Text()) != 0);
    return true;
}

bool ctlKOMASchedulerLine::CopyModelFrom(const KomaObject& other) {
    const auto* line = dynamic_cast<const ctlKOMASchedulerLine*>(&other);
    if (!line || !KomaObject::CopyModelFrom(other)) return false;
    enableWord_ = line->enableWord_;
    activeWord_ = line->activeWord_;
    visibleWord_ = line->visibleWord_;
    return true;
}

}  // namespace tolva
