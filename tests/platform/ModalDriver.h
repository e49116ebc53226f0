#pragma once
// Window tests that open a modal window or a popup menu: the check runs on
// it once it is up, from the event loop that the window's own exec runs.
#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <functional>
#include <memory>

namespace tolva::testing {

// Tries again every 10 ms until `find` gives a window, then runs the check.
template <typename W>
void OnNextWindow(std::function<W*()> find, std::function<void(W*)> check) {
    // The attempt holds itself only weakly; each pending timer holds it
    // strongly, so it is freed once the check has run.
    auto attempt = std::make_shared<std::function<void()>>();
    std::weak_ptr<std::function<void()>> weak = attempt;
    *attempt = [find, check, weak] {
        W* window = find();
        if (!window) {
            if (auto again = weak.lock()) QTimer::singleShot(10, [again] { (*again)(); });
            return;
        }
        check(window);
    };
    QTimer::singleShot(0, [attempt] { (*attempt)(); });
}

// Runs the check on the next modal window once it is up.
inline void OnNextModal(std::function<void(QWidget*)> check) {
    OnNextWindow<QWidget>([] { return QApplication::activeModalWidget(); }, std::move(check));
}

// Runs the check on the popup menu once it is up.
inline void OnNextPopup(std::function<void(QMenu*)> check) {
    OnNextWindow<QMenu>([] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); },
                        std::move(check));
}

}  // namespace tolva::testing
