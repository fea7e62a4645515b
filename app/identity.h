#pragma once

namespace Mirrix {

/// Sets organisation, domain, name and version of the application. Call before anything asks where data lies, and
/// before the application object is made.
void setApplicationIdentity();

} // namespace Mirrix
