// SaveHeaderFile: the C header that gives every object's ID a symbol. It is
// written right after the resource text, whose save gave out the IDs.
#include "resfile/DesignText.h"
#include "resfile/Banners.h"
#include "resfile/ResourceFiles.h"
#include "resfile/ResourceWriter.h"

namespace tolva {

bool SaveHeaderFile(DesignText& design, const std::string& path) {
    ResourceWriter out(path);

    // Lines 1 to 11. The guard word does not follow the file's name, and
    // the box of lines 8 to 10 is one comment that ends on line 10.
    out.WriteLines(HeaderFileBanner());
    out.WriteLine("");
    out.WriteLine("#ifndef __RESOURCE_OBJECTS_H_");
    out.WriteLine("#define __RESOURCE_OBJECTS_H_");
    out.WriteLine("");
    out.WriteLine("/**************");
    out.WriteLine("/* Object IDs *");
    out.WriteLine("/**************/");
    out.WriteLine("");

    // Line 12: the definitions, or one empty line in their place when there
    // are none.
    LineList definitions;
    design.GetHeaderFileText(definitions);
    if (definitions.empty())
        out.WriteLine("");
    else
        out.WriteLines(definitions);

    // Lines 13 and 14.
    out.WriteLine("");
    out.WriteLine("#endif");
    out.Close();
    return true;
}

}  // namespace tolva
