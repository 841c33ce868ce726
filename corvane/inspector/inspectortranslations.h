#pragma once

namespace corvane {

/**
 * Has the windows' texts, and Qt's own, shown in the language of the default locale, where the
 * inspector has it. To be called once there is an application, before the first window.
 */
void installInspectorTranslations();

} // namespace corvane
