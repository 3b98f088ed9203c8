#ifndef KVOGUI_SIGNALS_H
#define KVOGUI_SIGNALS_H

#include <boost/signals2/connection.hpp>

/// The name by which connections are known to hosts.
namespace boost::signals {
using connection = signals2::connection;  ///< ends what a slot listens to
}  // namespace boost::signals

#endif
