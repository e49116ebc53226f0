#pragma once
// Window tests that work the objects' dialogs: the host answers its next
// dialog with the registered one, and the dialog's controls are found and
// pressed by their names.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QWidget>

#include "document/DialogModel.h"
#include "platform/DialogRegistry.h"
#include "support/ScriptedHost.h"

namespace tolva::testing {

// The host's next dialog is the one registered under the model's name, run
// modally as the editor runs it.
inline void AnswerWithRegisteredDialog(ScriptedHost& host) {
    host.dialogAnswers.push_back([](DialogModel& model) {
        const DialogRunner* run = FindDialog(model.DialogName());
        return run && (*run)(model, nullptr);
    });
}

template <typename T>
T* Find(QWidget& dialog, const char* name) {
    return dialog.findChild<T*>(QString::fromLatin1(name));
}

inline void Click(QWidget& dialog, const char* name) {
    auto* button = Find<QPushButton>(dialog, name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

}  // namespace tolva::testing
