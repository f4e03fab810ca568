chmod 000 locked.xml
# root reads every file: only check unreadability where it holds
if [ -r locked.xml ]; then echo "skip: running as root"; rm -f locked.xml; fi
