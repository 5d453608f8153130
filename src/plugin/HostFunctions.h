#pragma once

namespace dyeworks {

class PlugInHost;

/// The functions that plug-ins call (plugin.h) act on this host from now on, when they are called on the
/// calling thread; on any other, and with null, they do nothing. The host must outlive that.
void setPlugInHost(PlugInHost* host);

} // namespace dyeworks
