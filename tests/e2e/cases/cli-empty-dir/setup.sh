mkdir empty
