#include "shell/ui/Windows.h"

#include <algorithm>

#include "shell/ui/GameFrame.h"

namespace sorvane {

Windows::Windows(Session& session, const WindowMakers& makers) : session_(session), makers_(makers) {}
Windows::~Windows() = default;

GameFrame& Windows::Load(Family family) {
    auto& window = loaded_[static_cast<std::size_t>(family)];
    if (!window) {
        window = makers_.game(family, session_, *this);
        window->Form_Load();
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
