#include <herald/platform/keystone/NotificationUpdateObject.h>

namespace Tessel {

NotificationUpdateObject::NotificationUpdateObject(const MVCModel& model) : model_(&model) {}

NotificationUpdateObject::~NotificationUpdateObject() = default;

NotificationUpdateObject* NotificationUpdateObject::clone() const { return new NotificationUpdateObject(*this); }

}  // namespace Tessel
