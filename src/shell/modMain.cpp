#include "shell/modMain.h"

#include <QTimer>
#include <cstdio>

#include "document/DataDirectory.h"
#include "canvas/DeviceFont.h"
#include "canvas/FontWidths.h"
#include "document/Host.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/StringTable.h"
#include "document/Words.h"
#include "inspector/ValueLists.h"
#include "objects/form/FormStyles.h"
#include "objects/bitmap/modBitmap.h"
#include "objects/button/modButton.h"
#include "objects/checkbox/modCheckbox.h"
#include "objects/popuptrigger/modPopuptrigger.h"
#include "objects/pushbutton/modPushbutton.h"
#include "objects/repeatbutton/modRepeatbutton.h"
#include "objects/string/modString.h"
#include "objects/field/modField.h"
#include "objects/line/modLine.h"
#include "objects/list/modList.h"
#include "objects/menu/modMenu.h"
#include "objects/schedulerline/modSchline.h"
#include "objects/scrollbar/modScrollbar.h"
#include "objects/table/modTable.h"
#include "objects/textbox/modTextbox.h"
#include "canvas/qt/CanvasWidget.h"
#include "platform/QtHost.h"
#include "shell/FilePaths.h"
#include "shell/ObjectDialogs.h"
#include "shell/RunGuarded.h"
#include "shell/frmMain.h"

namespace tolva {

void LoadStringTable(Host& host) {
    StringTable& table = StringTable::Shared();
    table.LoadFromFile(DataDirectory(host) + "/Strings.txt");
    table.SetLanguage(host.LanguageId());
}

void BuildColorWordList() {
    // A fixed table, made on its first use: asked for here so that it stands
    // before any object does.
    ColorWordList();
}

bool LoadFontWidthTables(Host& host) {
    if (!LoadFontWidths(host)) return false;
    // The glyphs the canvas draws device text with; they stand beside the
    // width files and were made from the same pixels.
    LoadDeviceFonts(DataDirectory(host));
    return true;
}

const std::vector<ValueListStep>& ValueListSteps() {
    static const std::vector<ValueListStep> steps = {
        {"form", type::Form, &FillFormValueLists},
        {"button", type::Button, &FillButtonValueLists},
        {"string", type::String, &FillStringValueLists},
        {"repeat button", type::RepeatButton, &FillRepeatButtonValueLists},
        {"bitmap", type::Bitmap, &FillBitmapValueLists},
        {"checkbox", type::Checkbox, &FillCheckboxValueLists},
        {"push button", type::PushButton, &FillPushButtonValueLists},
        {"textbox", type::Textbox, &FillTextboxValueLists},
        {"field", type::Field, &FillFieldValueLists},
        {"line", type::Line, &FillLineValueLists},
        {"list", type::List, &FillListValueLists},
        {"menu", type::Menu, &FillMenuValueLists},
        {"popup trigger", type::PopupTrigger, &FillPopupTriggerValueLists},
        {"scrollbar", type::Scrollbar, &FillScrollbarValueLists},
        {"scheduler line", type::SchedulerLine, &FillSchlineValueLists},
        {"table", type::Table, &FillTableValueLists},
    };
    return steps;
}

void BuildValueLists() {
    // Each kind's module fills its lists once, in the order of the steps.
    for (const ValueListStep& step : ValueListSteps()) {
        if (!step.fill) continue;
        ValueLists lists;
        step.fill(lists);
        SetValueLists(step.type, lists);
    }
}

void LoadPropertyLabelStrings() { LoadPropertyLabels(StringTable::Shared()); }

std::unique_ptr<frmMain> StartUp(Host& host, bool show) {
    LoadStringTable(host);
    BuildColorWordList();
    if (!LoadFontWidthTables(host)) return nullptr;
    BuildValueLists();
    LoadPropertyLabelStrings();
    ResourceFilePath.clear();
    HeaderFilePath.clear();
    auto window = std::make_unique<frmMain>(host);
    window->Load(show);
    return window;
}

int SubMain(int argc, char** argv) {
    GuardedApplication app(argc, argv);
    QtHost host;
    // TOLVA_START_CHECK=1: start, say so and end, with no box waiting for
    // an answer (the installed program's test).
    const bool startCheck = qEnvironmentVariableIsSet("TOLVA_START_CHECK");
    host.SetStartCheck(startCheck);
    RegisterObjectDialogs();
    SetGuardHost(&host);
    std::unique_ptr<frmMain> window;
    RunGuarded([&] { window = StartUp(host); });
    if (!window) return kRunTimeErrorStatus;
    if (startCheck) {
        std::printf("started\n");
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    }
    host.SetParentWidget(window.get());
    host.SetCursorWidgets(window.get(), window->ScreenWidget());
    const int status = app.exec();
    host.SetCursorWidgets(nullptr, nullptr);
    host.SetParentWidget(nullptr);
    SetGuardHost(nullptr);
    return status;
}

}  // namespace tolva
