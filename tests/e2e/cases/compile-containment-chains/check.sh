# The class and containment dumps show the chains: R's containments RA then
# RB, A's parent containments BA then RA.
actual=$(grep -a -E ' - [^ ]+ +-- (Containment|Moc)|NextCont|ChildContainment|arentContainment' validator.log | sed -E 's/^.* - [^ ]+ +//')
expected='-- Moc (A)--
ChildContainment:  null
ParentContainment: M~1~BA
-- Moc (B)--
ChildContainment:  M~1~BA
ParentContainment: M~1~RB
-- Moc (R)--
ChildContainment:  M~1~RA
parentContainment: null
-- Containment (BA) --
NextContSamePMoc:  
NextContSameCMoc:  M~1~RA
-- Containment (RA) --
NextContSamePMoc:  M~1~RB
NextContSameCMoc:  
-- Containment (RB) --
NextContSamePMoc:  
NextContSameCMoc:  '
[[ "$actual" == "$expected" ]] || { echo "chains differ:"; echo "$actual"; exit 1; }
