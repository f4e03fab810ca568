mkdir lists
