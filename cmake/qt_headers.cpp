// Carries the precompiled headers of the toolkit; see TabrovaLibrary.cmake.
