// The renderer's side of the windows: which models have a window, modal loops, closing,
// and applying every change after a forwarded gesture.
#include <QCoreApplication>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/qt/application.h"
#include "platform/qt/form_view.h"

namespace qh {

FormRenderer::~FormRenderer() {
    for (auto& [form, window] : windows_) delete window;
    for (QPointer<FormWindow>& window : closed_) delete window.data();
}

FormWindow* FormRenderer::windowOf(const Form& form) const {
    auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second;
}

FormWindow& FormRenderer::windowFor(Form& form) {
    if (FormWindow* window = windowOf(form)) return *window;
    auto* window = new FormWindow(*this, form);
    windows_[&form] = window;
    window->sync();
    return *window;
}

void FormRenderer::show(Form& form) {
    FormWindow& window = windowFor(form);
    form.showing();
    syncAll();
    if (FormWindow* shown = windowOf(form)) shown->focusFirstField();
    if (QGuiApplication::platformName() != QStringLiteral("offscreen")) window.raise();
}

void FormRenderer::showModal(Form& form, Form* owner) {
    FormWindow* window = &windowFor(form);
    if (window->isVisible()) window->hide();
    window->setWindowModality(Qt::ApplicationModal);
    if (owner) {
        if (FormWindow* ownerWindow = windowOf(*owner)) {
            window->winId();
            if (window->windowHandle() && ownerWindow->windowHandle())
                window->windowHandle()->setTransientParent(ownerWindow->windowHandle());
        }
    }
    form.showing();
    syncAll();
    if ((window = windowOf(form))) window->focusFirstField();
    QEventLoop loop;
    modal_.push_back({&form, &loop});
    if (form.visible && windowOf(form)) loop.exec(QEventLoop::DialogExec);
    modal_.erase(std::remove_if(modal_.begin(), modal_.end(), [&](const ModalRun& run) { return run.loop == &loop; }),
                 modal_.end());
    if ((window = windowOf(form)) && !window->isVisible()) window->setWindowModality(Qt::NonModal);
}

bool FormRenderer::close(Form& form, UnloadMode mode) {
    if (!form.requestClose(mode)) {
        // The model kept its window; it may have hidden it (an editor's own cancel).
        syncAll();
        return false;
    }
    auto it = windows_.find(&form);
    if (it != windows_.end()) {
        FormWindow* window = it->second;
        windows_.erase(it);
        window->retire();
        window->hide();
        // Later: the close may come from a handler of this very window.
        window->deleteLater();
        closed_.emplace_back(window);
    }
    syncAll();
    quitIfNoWindowLeft();
    return true;
}

void FormRenderer::forward(const std::function<void()>& gesture) {
    const auto gestureAndFocus = [&] {
        gesture();
        std::vector<Form*> shown;
        for (auto& [form, window] : windows_) shown.push_back(&window->form());
        for (Form* form : shown) form->keepFocusInReach();
    };
    // The toolkit's own frames lie under every gesture and are not built to be unwound: a
    // failure of the model is reported here, before it could pass through them.
    auto* application = dynamic_cast<Application*>(QCoreApplication::instance());
    if (!application) {
        gestureAndFocus();
    } else {
        try {
            gestureAndFocus();
        } catch (const std::exception& failure) {
            application->fail(failure.what());
            return;
        } catch (...) {
            application->fail(std::string());
            return;
        }
    }
    syncAll();
}

void FormRenderer::syncAll() {
    std::vector<FormWindow*> windows;
    for (auto& [form, window] : windows_) windows.push_back(window);
    for (FormWindow* window : windows)
        if (std::find_if(windows_.begin(), windows_.end(), [&](const auto& entry) { return entry.second == window; }) !=
            windows_.end())
            window->sync();
    endFinishedModalLoops();
}

bool FormRenderer::anyShownWindowUnexposed() const {
    for (const auto& [form, window] : windows_)
        if (window->isVisible() && window->windowHandle() && !window->windowHandle()->isExposed()) return true;
    return false;
}

void FormRenderer::endFinishedModalLoops() {
    for (const ModalRun& run : modal_)
        if (!run.form->visible || !windowOf(*run.form)) run.loop->quit();
}

void FormRenderer::quitIfNoWindowLeft() {
    if (!quitWhenLastWindowCloses) return;
    // Looked at once the current event is done: a start-up that closes the splash before
    // the main window shows is no end of the program.
    QTimer::singleShot(0, &lifetime_, [this] {
        for (auto& [form, window] : windows_)
            if (window->isVisible()) return;
        QCoreApplication::quit();
    });
}

}  // namespace qh
