// A library needs a source; all else here is made.
