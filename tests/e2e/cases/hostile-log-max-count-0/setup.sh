echo keep > validator.log-1
echo keep > notes.1
