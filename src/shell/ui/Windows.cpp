#include "shell/ui/Windows.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "forms/Runtime.h"
#include "platform/RunTimeError.h"
#include "shell/GuideFacts.h"
#include "shell/ui/GameFrame.h"
#include "shell/ui/frmGuide.h"

namespace sorvane {

namespace {

std::string_view ChapterOf(const forms::Window& window) {
    const auto* game = dynamic_cast<const GameFrame*>(&window);
    return game ? GuideFacts::ChapterOf(game->Which, game->SSTab1.Tab())
                : GuideFacts::ChapterOf(window.Name());
}

}  // namespace

Windows::Windows(Session& session, const WindowMakers& makers)
    : session_(session),
      makers_(makers),
      helpBefore_(forms::Runtime::Current().OnHelp([this](forms::Window& front) { ShowGuide(front); })) {}

Windows::~Windows() { forms::Runtime::Current().OnHelp(helpBefore_); }

// The guide itself has no chapter of its own, and needs no second one over it.
void Windows::ShowGuide(const forms::Window& front) const {
    if (front.Name() == frmGuide::WindowName) return;
    frmGuide guide(GuideFacts::PathBelow(session_.global.AppPath), ChapterOf(front));
    guide.ShowModal();
}

GameFrame& Windows::Load(Family family) {
    auto& window = loaded_[static_cast<std::size_t>(family)];
    if (!window) {
        window = makers_.game(family, session_, *this);
        const int error = ErrorOf([&] { window->Form_Load(); });
        if (error != 0) {
            Unload(*window);
            Raise(error);
        }
    }
    return *window;
}

bool Windows::IsLoaded(Family family) const { return loaded_[static_cast<std::size_t>(family)] != nullptr; }

std::unique_ptr<forms::Window> Windows::MakeReport() const { return makers_.report(session_); }

void Windows::ShowModal(forms::Window& window) {
    ++shown_;
    window.ShowModal();
    if (--shown_ == 0) leaving_.clear();
}

void Windows::Unload(GameFrame& window) {
    const auto at = std::find_if(loaded_.begin(), loaded_.end(),
                                 [&](const auto& loaded) { return loaded.get() == &window; });
    if (at == loaded_.end()) return;
    leaving_.push_back(std::move(*at));
    window.Unload();
}

}  // namespace sorvane
