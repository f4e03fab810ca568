echo keep > validator.log-1
echo keep > validator.logx.2
echo keep > notes.1
echo keep > other.log.3
