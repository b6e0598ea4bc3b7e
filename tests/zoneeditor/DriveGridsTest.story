== ShowsWhatIsAskedForOfTheRangeOrTheLog
show fraDrive(0) grdDrive(0)[6][0] grdDrive(0)[0][16] -> fraDrive(0) hidden, fraDrive(0)=, grdDrive(0)[6][0]=220 kPa 600, grdDrive(0)[0][16]=75
choose cboShowOnGrid Visits -> fraDrive(0) shown, fraDrive(0)=Visits (Samples), fraDrive(1) shown, fraDrive(1)=Visits (Samples), grdDrive(0) shown, grdDrive(0)[1][3]=20, grdDrive(0)[1][5]=40, grdDrive(0)[1][1] locked to [6][16] locked=true, grdDrive(1) shown, grdDrive(1)[1][3]=20, grdDrive(1)[1][5]=40, grdDrive(1)[1][1] locked to [6][16] locked=true, cboShowOnGrid=Visits
choose cboShowOnGrid "Air/Fuel Error"; show grdDrive(0)[1][3] grdDrive(0)[1][5] -> grdDrive(0)[1][3]=+4.0, grdDrive(0)[1][3] colour=255, grdDrive(0)[1][3] locked=true, grdDrive(0)[1][3] tool_tip=20 samples, air/fuel +4.0 %, knock up to 7, grdDrive(0)[1][5]=-5.0, grdDrive(0)[1][5] locked=true, grdDrive(0)[1][5] tool_tip=40 samples, air/fuel -5.0 %, knock up to 9, fraDrive(0)=Air/Fuel Error (%), fraDrive(1)=Air/Fuel Error (%), grdDrive(0)[1][3]=+4.0, grdDrive(0)[1][5]=-5.0, grdDrive(0)[1][3] colour=255, grdDrive(1)[1][3]=+4.0, grdDrive(1)[1][5]=-5.0, grdDrive(1)[1][3] colour=255, cboShowOnGrid=Air/Fuel Error
choose cboShowOnGrid Knock -> fraDrive(0)=Highest Knock, fraDrive(1)=Highest Knock, grdDrive(0)[1][3]=7, grdDrive(0)[1][5]=9, grdDrive(1)[1][3]=7, grdDrive(1)[1][5]=9, cboShowOnGrid=Knock, grdDrive(0)[1][3] colour gone, grdDrive(1)[1][3] colour gone
click chkWholeLog -> grdDrive(0)[1][7]=0, grdDrive(1)[1][7]=0, chkWholeLog checked
choose cboShowOnGrid Visits -> fraDrive(0)=Visits (Samples), fraDrive(1)=Visits (Samples), grdDrive(0)[1][3]=20, grdDrive(0)[1][5]=40, grdDrive(0)[1][7]=30, grdDrive(1)[1][3]=20, grdDrive(1)[1][5]=40, grdDrive(1)[1][7]=30, cboShowOnGrid=Visits
show grdDrive(0)[1][2] grdDrive(0)[1][3] grdDrive(0)[1][5] -> grdDrive(0)[1][2]=, grdDrive(0)[1][2] locked=true, grdDrive(0)[1][2] tool_tip=No samples, grdDrive(0)[1][3]=20, grdDrive(0)[1][3] back_colour=9018911, grdDrive(0)[1][3] locked=true, grdDrive(0)[1][3] tool_tip=20 samples, air/fuel +4.0 %, knock up to 7, grdDrive(0)[1][5]=40, grdDrive(0)[1][5] back_colour=2940596, grdDrive(0)[1][5] locked=true, grdDrive(0)[1][5] tool_tip=40 samples, air/fuel -5.0 %, knock up to 9
choose cboShowOnGrid Nothing -> fraDrive(0) hidden, fraDrive(0)=, fraDrive(1) hidden, fraDrive(1)=, grdDrive(0) hidden, grdDrive(1) hidden, cboShowOnGrid=Nothing

== ACellGoesThroughItsSamplesInTheGraph
show cmdNextInCell -> cmdNextInCell off, cmdNextInCell=Ne&xt in Cell
choose cboShowOnGrid Visits -> fraDrive(0) shown, fraDrive(0)=Visits (Samples), fraDrive(1) shown, fraDrive(1)=Visits (Samples), grdDrive(0) shown, grdDrive(0)[1][3]=20, grdDrive(0)[1][5]=40, grdDrive(0)[1][1] locked to [6][16] locked=true, grdDrive(1) shown, grdDrive(1)[1][3]=20, grdDrive(1)[1][5]=40, grdDrive(1)[1][1] locked to [6][16] locked=true, cboShowOnGrid=Visits
cell grdDrive(0) 1 5 -> sample=20, grdData(0) ring=[1|4.5], grdData(3) ring=[1|4.5], grdDrive(0) column=5, grdDrive(0) range=[1|5|1|5], grdDrive(0) ring=[1|4.5], grdDrive(1) ring=[1|4.5], cmdNextInCell on, lblStatus=Sample 20, one of 40 in this cell.
click cmdNextInCell -> sample=21, lblStatus=Sample 21, one of 40 in this cell.
# The same cell once more.
cell grdDrive(0) 1 5 -> sample=22, lblStatus=Sample 22, one of 40 in this cell.
cell grdDrive(1) 2 5 -> grdDrive(1) row=2, grdDrive(1) column=5, grdDrive(1) range=[2|5|2|5], lblStatus=No sample lies in this cell.
# The first sample of all.
cell grdDrive(0) 1 3 -> sample=0, grdData(0) ring=[1|2.5], grdData(3) ring=[1|2.5], grdDrive(0) column=3, grdDrive(0) range=[1|3|1|3], grdDrive(0) ring=[1|2.5], grdDrive(1) ring=[1|2.5], lblStatus=Sample 0, one of 20 in this cell.
# Another grid starts again.
cell grdDrive(1) 1 5 -> sample=20, grdData(0) ring=[1|4.5], grdData(3) ring=[1|4.5], grdDrive(0) ring=[1|4.5], grdDrive(1) row=1, grdDrive(1) range=[1|5|1|5], grdDrive(1) ring=[1|4.5], lblStatus=Sample 20, one of 40 in this cell.
key Ctrl+C -> clipboard=40\n

== AProposalIsAppliedAsOneStep
show cmdApplyProposal -> cmdApplyProposal off, cmdApplyProposal hidden, cmdApplyProposal=&Apply
click cmdPropose -> fraProposal shown, grdProposal shown, grdProposal[1][5]=-5, grdProposal[1][5] mark=lowered, grdProposal[6][1] blacked_out to [6][2] blacked_out=true, cmdApplyProposal on, cmdApplyProposal shown, lblStatus=1 fuel cell would be changed. Nothing is changed yet.
show grdProposal[6][1] -> grdProposal[6][1]=, grdProposal[6][1] blacked_out=true, grdProposal[6][1] tool_tip=No samples
click chkWholeLog -> grdProposal[1][7]=+5, grdProposal[1][7] mark=raised, chkWholeLog checked
# 5 % of what is there now.
cell grdData(0) 1 7 200 -> grdData(0)[1][7]=200, grdData(0) column=7, grdData(0) range=[1|7|1|7], grdData(0)[1][7] mark=raised, grdData(2)[1][7]=-200, grdProposal[1][7]=+10, lblStatus=zf130 100 to 200
click cmdApplyProposal -> grdData(0)[1][5]=95, grdData(0)[1][7]=210, grdData(0)[1][5] mark=lowered, grdData(2)[1][5]=-95, grdData(2)[1][7]=-210, fraProposal hidden, grdProposal hidden, cmdApplyProposal off, cmdApplyProposal hidden, lblStatus=Proposal on 2 fuel cells
key Ctrl+Z -> grdData(0)[1][5]=100, grdData(0)[1][7]=200, grdData(2)[1][5]=-100, grdData(2)[1][7]=-200, lblStatus=zf130 100 to 200, grdData(0)[1][5] mark gone
# A proposal stays with what is shown, and goes with it.
click chkWholeLog; click cmdPropose -> fraProposal shown, grdProposal shown, grdProposal[1][7]=, cmdApplyProposal on, cmdApplyProposal shown, chkWholeLog unchecked, lblStatus=1 fuel cell would be changed. Nothing is changed yet., grdProposal[1][7] mark gone
choose cboShowOnGrid Visits -> fraDrive(0) shown, fraDrive(0)=Visits (Samples), fraDrive(1) shown, fraDrive(1)=Visits (Samples), grdDrive(0) shown, grdDrive(0)[1][3]=20, grdDrive(0)[1][5]=40, grdDrive(0)[1][1] locked to [6][16] locked=true, grdDrive(1) shown, grdDrive(1)[1][3]=20, grdDrive(1)[1][5]=40, grdDrive(1)[1][1] locked to [6][16] locked=true, cboShowOnGrid=Visits
choose cboShowOnGrid Nothing -> fraDrive(0) hidden, fraDrive(0)=, fraDrive(1) hidden, fraDrive(1)=, grdDrive(0) hidden, grdDrive(1) hidden, fraProposal hidden, grdProposal hidden, cmdApplyProposal off, cmdApplyProposal hidden, cboShowOnGrid=Nothing
faster; click cmdPropose -> lblStatus=No fuel cell with 30 samples is off its target.
