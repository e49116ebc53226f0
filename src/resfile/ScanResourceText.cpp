// Stage 1 of a load: every record of the text into its store, through the
// checks of the ID table. Top-level lines are opening words only; anything
// else ends the load.
#include "document/Host.h"
#include "resfile/RecordKinds.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceLoading.h"
#include "resfile/ResourceReader.h"

namespace tolva {

namespace {

constexpr const char* kLoadError = "Load Error";

class Scan {
public:
    Scan(ResourceReader& reader, Host& host, const RecordKinds& kinds, LoadedDesign& design)
        : reader_(reader), in_(reader, host), host_(host), kinds_(kinds), design_(design) {}

    bool Run() {
        while (!reader_.AtEnd()) {
            const std::string line = reader_.ReadResourceLine();
            const RecordKind* section = kinds_.FindSection(line);
            bool goOn = false;
            if (section && section->parser)
                goOn = ReadSection(*section);
            else if (line == kinds_.controlHead.word && kinds_.controlHead.parser)
                goOn = ReadControl();
            else
                goOn = Unsupported();
            if (!goOn) return false;
        }
        return true;
    }

private:
    // A record whose parser fails is left behind with its message; the scan
    // goes on at the line after the failing one.
    bool ReadSection(const RecordKind& kind) {
        LoadedRecord record;
        if (!kind.parser(in_, record)) {
            host_.MessageBox(kind.loadFailText, kLoadError);
            return true;
        }
        return Keep(kind.screenType, std::move(record));
    }

    // The head is read first; whatever it did, the record's style word then
    // chooses the tail.
    bool ReadControl() {
        LoadedRecord record;
        if (!kinds_.controlHead.parser(in_, record))
            host_.MessageBox(kinds_.controlHead.loadFailText, kLoadError);
        if (const RecordKind* style = kinds_.FindControlStyle(record.kindWord)) {
            if (!style->parser) return Unsupported();
            if (!style->parser(in_, record)) {
                host_.MessageBox(style->loadFailText, kLoadError);
                return true;
            }
            return Keep(style->screenType, std::move(record));
        }
        if (record.kindWord == "0") {
            // The text stays open here, as it always did.
            host_.MessageBox("Invalid control format.  Could not load resource file", kLoadError);
            return false;
        }
        // Any other style is passed over; the scan goes on at the next line.
        return true;
    }

    // Also a section whose kind has no parser yet.
    bool Unsupported() {
        host_.MessageBox("Invalid/unsupported resource object", kLoadError);
        reader_.Close();
        return false;
    }

    bool Keep(int screenType, LoadedRecord record) {
        LoadedRecord& kept = design_.Store(screenType).emplace_back(std::move(record));
        if (design_.ids.Enter(kept, host_, reader_.LineCounter())) return true;
        reader_.Close();
        return false;
    }

    ResourceReader& reader_;
    RecordReader in_;
    Host& host_;
    const RecordKinds& kinds_;
    LoadedDesign& design_;
};

}  // namespace

void LoadedDesign::Clear() {
    for (auto& store : stores) store.clear();
    ids.Clear();
}

bool ScanResourceText(ResourceReader& reader, Host& host, const RecordKinds& kinds,
                      LoadedDesign& design) {
    design.Clear();
    return Scan(reader, host, kinds, design).Run();
}

}  // namespace tolva
