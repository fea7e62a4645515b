// Exists so that the precompiled header of the tests is built once.
