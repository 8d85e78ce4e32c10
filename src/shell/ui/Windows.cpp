#include "shell/ui/Windows.h"

#include <algorithm>

#include "entry/ui/GameWindow.h"

namespace sorvane {

Windows::Windows(Run& run) : run_(run) {}
Windows::~Windows() = default;

GameWindow& Windows::Load(Family family) {
    auto& window = loaded_[static_cast<std::size_t>(family)];
    if (!window) {
        window = std::make_unique<GameWindow>(family, run_, *this);
        window->Form_Load();
    }
    return *window;
}

bool Windows::IsLoaded(Family family) const { return loaded_[static_cast<std::size_t>(family)] != nullptr; }

void Windows::ShowModal(forms::Window& window) {
    ++shown_;
    window.ShowModal();
    if (--shown_ == 0) leaving_.clear();
}

void Windows::Unload(GameWindow& window) {
    const auto at = std::find_if(loaded_.begin(), loaded_.end(),
                                 [&](const auto& loaded) { return loaded.get() == &window; });
    if (at == loaded_.end()) return;
    leaving_.push_back(std::move(*at));
    window.Unload();
}

}  // namespace sorvane
