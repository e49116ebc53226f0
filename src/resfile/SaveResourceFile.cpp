// SaveResourceFile: the resource text, section by section. The writer knows
// only the order; each object gives its own record, and the screen writes
// the menus from the forms' data. Lines go to the file as they come.
#include "document/ObjectTypes.h"
#include "resfile/DesignText.h"
#include "resfile/Banners.h"
#include "resfile/ResourceFiles.h"
#include "resfile/ResourceWriter.h"

namespace tolva {

namespace {

void WriteRecordsOf(DesignText& design, ResourceWriter& out, int screenType) {
    LineList lines;
    for (const std::string& name : design.GetNameList(screenType)) {
        // What an object gives goes out as it is; no result is looked at.
        design.GetKOMAResourceText(lines, name, screenType);
        out.WriteLines(lines);
    }
}

}  // namespace

bool SaveResourceFile(DesignText& design, const std::string& path) {
    // 1. The IDs of the file are those of this moment; the header written
    // next shows the same.
    design.DistributeObjectIds();

    // 2., 3.
    ResourceWriter out(path);
    out.WriteLines(ResourceFileBanner());

    // 4. Forms.
    WriteRecordsOf(design, out, type::Form);

    // 5. Tables, each followed directly by the records of its cells.
    LineList lines;
    std::vector<LineList> blocks;
    for (const std::string& name : design.GetNameList(type::Table)) {
        design.GetKOMAResourceText(lines, name, type::Table);
        out.WriteLines(lines);
        design.GetTableObjects(name, blocks);
        for (const LineList& block : blocks) out.WriteLines(block);
    }

    // 6. Menus.
    design.GetMenuResourceText(lines);
    out.WriteLines(lines);

    // 7. Every other kind; objects in cells are in no name list.
    constexpr int kOrder[] = {type::Button,       type::String,       type::Bitmap,
                              type::Checkbox,     type::PushButton,   type::RepeatButton,
                              type::Textbox,      type::List,         type::Field,
                              type::PopupTrigger, type::Scrollbar,    type::Line,
                              type::SchedulerLine};
    for (int t : kOrder) WriteRecordsOf(design, out, t);

    // 8.
    out.Close();
    return true;
}

}  // namespace tolva
