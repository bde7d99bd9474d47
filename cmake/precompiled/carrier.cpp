// Only carries a header that is compiled once for many targets.
