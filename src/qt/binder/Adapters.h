#pragma once

#include <memory>

#include "qt/binder/Adapter.h"

namespace tarnview {

/// The adapter for this kind of control on this kind of view (nullptr: a control that has no place
/// on the screen); none if there is no such pair.
std::unique_ptr<Adapter> MakeAdapter(Control& control, QObject* view, Binder& binder);

}  // namespace tarnview
