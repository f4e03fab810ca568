mkdir logdir
