// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/fields.h"

namespace korvane {

const std::string* Fields::OwnText(const Control& field) const {
  if (IsTyped(field)) return &*typed_;
  const auto it = kept_.find(&field);
  return it == kept_.end() ? nullptr : &it->second;
}

void Fields::Use(const Control& field) {
  if (inUse_ != &field) typed_.reset();
  inUse_ = &field;
}

void Fields::Left(const Control& field) {
  if (inUse_ != &field) return;
  inUse_ = nullptr;
  typed_.reset();
}

void Fields::Release(const Form& form) {
  if (inUse_ != nullptr && inUse_->form == &form) Left(*inUse_);
}

void Fields::Refuse(const Control& field, const ProjectState& before, const ProjectState& after) {
  if (refused_ && refused_->field == &field) {
    refused_->after = after;
  } else {
    refused_ = RefusedValue{&field, before, after};
  }
}

void Fields::Accept(const Control& field) {
  if (refused_ && refused_->field == &field) refused_.reset();
}

}  // namespace korvane
