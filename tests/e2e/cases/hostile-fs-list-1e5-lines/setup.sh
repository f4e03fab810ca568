# A list file of 100 000 lines: empty ones, blanks and carriage returns,
# and the model file as the last line.
{
  for i in $(seq 33333); do printf '\n  \t \r\n\r\n'; done
  printf 'a.xml\n'
} > list
