/// What the toolkit would keep of its user by itself.
#pragma once

/// The toolkit's dialogs note the folders last seen and the colours last mixed in a settings file of the user's home.
/// From this call on they note them nowhere: outside its data root the program writes only what its user asks for.
void KeepNoToolkitSettings();
